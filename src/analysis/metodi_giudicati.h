#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/piano_di_gioco.h"
#include "archive/archivio.h"
#include "statistics/giudizio_statistica.h"
#include "statistics/metodi_corsa.h"

namespace vaticlo {

/// The draws `dal` to `al`, by number.
struct IntervalloEstrazioni {
  int dal = 1;
  int al = 0;
};

/// How a prediction has done.
struct PrevisioneGiudicata {
  int slot = 0;
  int estrazione = 0;  ///< of the calculation
  int colpi = 0;
  std::optional<EsitoPrevisione> esito;  ///< none when it can't be judged
  /// A statistics run of its method alone takes it: it is decoded and no other prediction of its draw has
  /// stopped the scan before it. One that fails only in the judging is taken, and passes for lost.
  bool nellaStatistica = false;
  /// Its play, when it is judged and over: only then is it compared with chance.
  std::optional<PianoDiGioco> conclusa;
};

/// A method, judged alone.
struct MetodoGiudicato {
  std::string nome;
  MetodoLetto lettura;
  std::vector<PrevisioneGiudicata> previsioni;  ///< by draw and slot
};

/// Judges the predictions calculated on the draws of the interval, each method alone by the rules of the
/// statistics. Methods come in the order of `elenco`; one that can't be read has no predictions.
[[nodiscard]] std::vector<MetodoGiudicato> giudicaMetodi(const CartellaProgramma& cartella,
                                                         const ArchivioEstrazioni& archivio,
                                                         const std::vector<std::string>& elenco,
                                                         IntervalloEstrazioni intervallo);

}  // namespace vaticlo
