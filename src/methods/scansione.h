#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "archive/regole.h"
#include "methods/catalogo.h"
#include "methods/decodifica.h"
#include "methods/giudizio.h"
#include "platform/failure.h"
#include "platform/rapporto.h"
#include "program/programma.h"

namespace vaticlo {

// The reports of the two scans. The statistics write their predictions in play into the same file.
inline constexpr std::string_view kFilePrevGioco = "PrevGioco.txt";
inline constexpr std::string_view kFileVincenti = "Vincenti.txt";

/// What a scan asks of its window and shows on it.
class PannelloScansione {
 public:
  virtual ~PannelloScansione() = default;

  [[nodiscard]] virtual SceltaMetodo scelta() const = 0;
  /// How many last draws count for the recent winners, as text ("1" to "5").
  [[nodiscard]] virtual std::string txtColpi_Text() const = 0;
  virtual void prgbar_Value(int valore) = 0;
  virtual void prgbar_Max(int massimo) = 0;
  /// The end of a scan: the report is shown and can be printed, or the note that there is nothing.
  virtual void mostraRapporto(bool qualcosa) = 0;
};

/// The two scans over all predictions whose play period reaches beyond the last draw: which are still in play
/// without a hit (`PrevGioco.txt`), and which have won in the last draws (`Vincenti.txt`). One object for
/// each use. No failure is trapped: a report then holds every line written before it.
class ScansionePrevisioni : private EsitoColpo {
 public:
  /// Reads the archive.
  ScansionePrevisioni(Programma& programma, PannelloScansione& frm);

  void PrevInGioco();
  void PrevVincenti();

 private:
  void scorriMetodi(const std::filesystem::path& rapporto);
  void scorriPrevisione(FileRapporto& rapporto, const FileMetodo& metodo, const std::string& nome, int slot);
  /// What the user reads about a slot that ended the scan; slot 0: the slots could not be counted.
  [[nodiscard]] Spiegazione spiegazione(const std::string& metodo, int slot) const;
  void RiportaPrevisione(FileRapporto& rapporto, const std::string& metodo);
  /// The draw of the first colpo with a hit; later colpi are not looked at.
  [[nodiscard]] std::optional<int> ControllaColpi(int colpi);
  void scriviVoce(FileRapporto& rapporto, const std::string& metodo);

  void ambata(int numero, int ruota) override;
  void ambo(int a, int b, int ruota) override;
  void amboTutte(int a, int b, int ruota) override;
  void sorte(const std::vector<int>& usciti, int ruota) override;
  void annota(bool conta, const std::string& riga);
  [[nodiscard]] int limite() const;

  Programma& programma_;
  Globals& g_;
  PannelloScansione& frm_;
  ArchivioEstrazioni archivio_;
  RegoleVincita regole_;
  Decodificatore decodificatore_;
  int ColpoCorrente_ = 0;
  int UltimeEstrazioni_ = 0;
};

}  // namespace vaticlo
