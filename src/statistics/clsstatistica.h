#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "archive/regole.h"
#include "methods/catalogo.h"
#include "methods/decodifica.h"
#include "methods/giudizio.h"
#include "platform/rapporto.h"
#include "program/programma.h"
#include "statistics/metodi_corsa.h"

namespace vaticlo {

// The reports of a run, beside kFilePrevGioco: the totals, and the predictions that are decided.
inline constexpr std::string_view kFileStat = "Stat.txt";
inline constexpr std::string_view kFileVincite = "Vincite.txt";

/// What a statistics run asks of its dialog and shows on it.
class PannelloCorsa {
 public:
  virtual ~PannelloCorsa() = default;

  [[nodiscard]] virtual SceltaMetodo scelta() const = 0;
  virtual void prgbar_Value(int valore) = 0;
  virtual void prgbar_Max(int massimo) = 0;
  virtual void corsaIniziata() = 0;    ///< it can be stopped, nothing else can be done
  virtual void corsaInterrotta() = 0;  ///< stopped between two draws
};

/// The statistics: judges every prediction calculated in a range of draws and adds up the winning bets. One
/// object for one run: created (archive read, `PrevGioco.txt`, `Vincite.txt` and `Stat.txt` emptied),
/// Inizia(), rilascia().
class clsStatistica : private EsitoColpo {
 public:
  /// Fails with Errore::AccessoAlFile or PercorsoNonTrovato when the archive or a report can't be opened.
  clsStatistica(Programma& programma, PannelloCorsa& frm);

  /// A whole run over the draws from `inizio` to `fine`. A failure inside loses the step it is in, the rest
  /// of a draw or a line of the totals, and the run goes on. A stop is honoured between two draws; then no
  /// totals are written.
  void Inizia(std::int16_t inizio, std::int16_t fine);

  /// Closes the reports; only then are they complete. One that the disk did not take whole is noted in
  /// Globals; a failing write ends no run, not even the last one.
  void rilascia();

 private:
  void azzeraGiocate();
  void StatMetodo1(int estrazione, MetodiDellaCorsa& metodi);
  void StatPrevisione(int colpi, const std::string& metodo);
  [[nodiscard]] bool StatColpi(int colpi, const std::string& metodo);

  void scriviTotali(int inizio, int fine);
  void scriviVincita(const std::string& metodo, bool vincente);
  void scriviInGioco(int colpi, const std::string& metodo);

  void ambata(int numero, int ruota) override;
  void ambo(int a, int b, int ruota) override;
  void amboTutte(int a, int b, int ruota) override;
  void sorte(const std::vector<int>& usciti, int ruota) override;

  Programma& programma_;
  Globals& g_;
  PannelloCorsa& frm_;
  ArchivioEstrazioni archivio_;
  RegoleVincita regole_;
  Decodificatore decodificatore_;
  FileRapporto prevGioco_, vincite_, stat_;
};

}  // namespace vaticlo
