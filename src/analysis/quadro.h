#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/metodi_giudicati.h"

namespace vaticlo {

enum class StatoMetodo {
  Regolare,
  DieciPrevisioni,     ///< nothing judges it
  Illeggibile,         ///< its file can't be read
  PrevisioniNonViste,  ///< it holds predictions that no scan sees
};

/// The state in words; empty for a regular method.
[[nodiscard]] std::string_view testoStato(StatoMetodo stato);
[[nodiscard]] StatoMetodo statoDi(const MetodoLetto& lettura);

/// A method at a glance, over the interval of draws that it was judged on.
struct RigaQuadro {
  std::string metodo;
  StatoMetodo stato = StatoMetodo::Regolare;
  int previsioni = 0;  ///< that the scans see, of any draw
  int giocate = 0;     ///< taken by a statistics run: won, lost and in play
  int vincenti = 0, negative = 0, inGioco = 0;
  int concluse = 0;    ///< whose whole play lies in the archive
  double attese = 0;   ///< of them, how many win by chance
  int colpiVinti = 0;  ///< the sum of the winning colpi

  /// In percent of those not in play; nothing when there are none.
  [[nodiscard]] std::optional<double> quotaVincenti() const;
  /// What chance gives, in percent of the concluded ones; nothing when there are none.
  [[nodiscard]] std::optional<double> quotaAttese() const;
  /// The mean winning colpo; nothing without a win.
  [[nodiscard]] std::optional<double> colpoMedio() const;
};

/// A row for each method, in their order.
[[nodiscard]] std::vector<RigaQuadro> quadroDei(const std::vector<MetodoGiudicato>& metodi,
                                                const ArchivioEstrazioni& archivio);

}  // namespace vaticlo
