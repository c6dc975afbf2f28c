#pragma once

#include <string>
#include <vector>

#include "analysis/metodi_giudicati.h"
#include "analysis/prove.h"

namespace vaticlo {

/// The winners up to a draw: those there were, those to be expected, and between which numbers nine runs of
/// chance out of ten lie.
struct PuntoAndamento {
  int estrazione = 0;
  int vincenti = 0;
  double attese = 0;
  int basso = 0, alto = 0;
};

/// The concluded predictions of a method, or of all, beside what chance gives. What comes from the runs is
/// empty until there are any.
struct Confronto {
  std::string nome;
  int concluse = 0;
  int vincenti = 0;
  int nonGiudicabili = 0;
  double attese = 0;                         ///< winners to be expected, exact
  int prove = 0;                             ///< runs of chance
  int almeno = 0;                            ///< runs with at least as many winners
  int alPiu = 0;                             ///< runs with at most as many
  std::vector<std::uint32_t> distribuzione;  ///< by the number of winners, from 0: runs
  std::vector<int> vincentiPerColpo;         ///< by the colpo less 1
  std::vector<double> attesePerColpo;        ///< the same, to be expected, exact
  std::vector<PuntoAndamento> andamento;

  /// In percent of the concluded ones.
  [[nodiscard]] double quotaVincenti() const { return 100.0 * vincenti / concluse; }
  [[nodiscard]] double quotaAttese() const { return 100.0 * attese / concluse; }
  /// The chance to do at least, or at most, as well by luck, as far as the runs tell: (1 + n) / (1 + runs).
  [[nodiscard]] double probabilitaAlmeno() const { return (1.0 + almeno) / (1.0 + prove); }
  [[nodiscard]] double probabilitaAlPiu() const { return (1.0 + alPiu) / (1.0 + prove); }
};

/// Whether a blind choice would have done as well: a comparison for each method that has a concluded
/// prediction, in their order, and after them, when they are two or more, one for all together under the name
/// "Tutti". `fermata` and `avanzamento` as for provaIlCaso().
[[nodiscard]] std::vector<Confronto> confrontaColCaso(const std::vector<MetodoGiudicato>& metodi,
                                                      const ArchivioEstrazioni& archivio,
                                                      const OpzioniProve& opzioni,
                                                      std::stop_token fermata = {},
                                                      const std::function<void(int fatte)>& avanzamento = {});

}  // namespace vaticlo
