#pragma once

#include <array>
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

namespace vaticlo {

inline constexpr std::string_view kFileEsiti = "Esiti.txt";

// The lines of an entry by which its outcome is found again.
inline constexpr std::string_view kRigaEsito = " Esito:";
inline constexpr std::string_view kRigaNegativo = " Negativo";
inline constexpr std::string_view kRigaInGioco = " In gioco";

/// What the check takes from its dialog.
struct SceltaVerifica {
  SceltaMetodo metodo;
  std::string lblnestr;  ///< the number of the draw shown, as its label has it
};

/// The check: judges every prediction calculated on the draw shown and writes one entry for each into
/// `Esiti.txt`. One object for one run: created (archive read, counters 0, report emptied), ricerca(),
/// rilascia().
class clsMetodo : private EsitoColpo {
 public:
  /// Fails with Errore::AccessoAlFile or PercorsoNonTrovato when the archive or the report can't be opened.
  clsMetodo(Programma& programma, SceltaVerifica scelta);

  /// A whole run. Any failure inside ends it silently: what was written stays, the counters keep their
  /// values, and the caller goes on as after a normal run.
  void ricerca(int estrazione);

  /// Closes the report. Only then are report and counters final. A report that the disk did not take whole
  /// is noted in Globals; a failing write ends no run, not even the last one.
  void rilascia();

  [[nodiscard]] std::string get_data(int estrazione) const { return archivio_.DataEstrazione(estrazione); }

  // Evaluators and position tables, part of the class by contract; ricerca() does without them.

  /// Two to five of the five numbers on the wheel; only wheels 1 to 10 are looked at.
  bool ControllaCinquina(const std::array<int, 5>& numeri, int ruota, int estrazione);
  /// Two of the three numbers on the wheel, or all three on any wheel from 1 to 10. Fails with
  /// Errore::Indice for an index (from 1) that `Terzine` does not have.
  bool ControllaTerzina(int ruota, int indice, int estrazione);
  void DistanzePosizioni(int estrazione);
  void DifferenzePosizioni(int estrazione);
  /// The results of the two: [pair of positions][wheel - 1], wheels 1 to 10. The distances fill the first
  /// five.
  [[nodiscard]] const auto& posizioni() const { return posizioni_; }
  std::vector<std::array<int, 3>> Terzine;

 private:
  void ScorriMetodi();
  void RiportaPrevisione(int colpi, const std::string& metodo);
  [[nodiscard]] bool ControllaColpi(int colpi);

  void ambata(int numero, int ruota) override;
  void ambo(int a, int b, int ruota) override;
  void amboTutte(int a, int b, int ruota) override;
  void sorte(const std::vector<int>& usciti, int ruota) override;

  Programma& programma_;
  Globals& g_;
  SceltaVerifica scelta_;
  ArchivioEstrazioni archivio_;
  RegoleVincita regole_;
  Decodificatore decodificatore_;
  FileRapporto rapporto_;
  int ColpoCorrente_ = 0;
  std::array<std::array<std::int16_t, 10>, 10> posizioni_{};
};

/// A whole check of the draw in Globals: created, run, released.
void eseguiVerifica(Programma& programma, SceltaVerifica scelta);

}  // namespace vaticlo
