#pragma once

#include <array>
#include <functional>
#include <optional>

#include "analysis/metodi_giudicati.h"
#include "archive/archivio.h"
#include "forms/controlli.h"
#include "program/programma.h"

namespace vaticlo {

/// The controls that choose a range of draws by number, with the dates that go with it.
class CampiIntervallo {
 public:
  explicit CampiIntervallo(Programma& programma);

  Riquadro Frame1{"Estrazioni"};
  Etichetta lblDal{"&Dalla n."}, lblAl{"a&lla n."};
  std::array<CampoTesto, 2> txtestr;  ///< the numbers of the first and the last draw
  Etichetta lblDate;                  ///< the dates of the range, or between which numbers it lies
  std::function<void()> Change;       ///< the user has typed

  /// Offers the whole archive.
  void prendi(const ArchivioEstrazioni& archivio);
  /// The archive is another one: a range up to the last draw goes up to the new one.
  void segui(const ArchivioEstrazioni& archivio);
  /// The range; nothing when the fields hold none.
  [[nodiscard]] std::optional<IntervalloEstrazioni> intervallo() const;
  /// The same, and the user is told.
  [[nodiscard]] std::optional<IntervalloEstrazioni> leggi();

 private:
  [[nodiscard]] std::optional<int> numero(std::size_t campo) const;
  void mostraDate(const ArchivioEstrazioni& archivio);

  Programma& programma_;
  int ultima_ = 0;
};

}  // namespace vaticlo
