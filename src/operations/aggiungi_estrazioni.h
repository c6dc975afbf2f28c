#pragma once

#include <optional>
#include <string>

#include "archive/aggiunta.h"
#include "program/programma.h"

namespace vaticlo {

inline constexpr const char* kTitoloAggiungi = "Aggiungi Estrazioni";

/// The address of the public text of all draws, as the program was built.
[[nodiscard]] std::string indirizzoStorico();

/// The draws that the text at an address describes. It is fetched again only when it has changed since the
/// last time, as long as the program runs. Nothing, and the user told why, when it can't be had or taken.
[[nodiscard]] std::optional<ArchivioEstrazioni> estrazioniDaInternet(Programma& programma,
                                                                     const std::string& indirizzo);

/// Adds the new draws of a text to the archive: compared first, written when somebody has looked at it.
class AggiuntaEstrazioni {
 public:
  /// Compares the archive with the text. Nothing, and the user told why, when preparaAggiunta() refuses;
  /// failures of the archive's file.
  [[nodiscard]] static std::optional<AggiuntaEstrazioni> prepara(Programma& programma,
                                                                 ArchivioEstrazioni testo);

  [[nodiscard]] const Aggiunta& anteprima() const { return anteprima_; }
  /// Writes the archive with the new draws, as one step between programs. False, and the user told, when the
  /// archive is no longer the one that was compared; the preview is then that of the present one.
  bool scrivi();

 private:
  AggiuntaEstrazioni(Programma& programma, ArchivioEstrazioni testo);

  Programma& programma_;
  ArchivioEstrazioni testo_, confrontato_;
  Aggiunta anteprima_;
};

}  // namespace vaticlo
