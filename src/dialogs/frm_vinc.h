#pragma once

#include "dialogs/elenco_scansione.h"

namespace vaticlo {

/// The recent winners. Meant: its print button does nothing (guide: "Vincenti alle Ultime Estrazioni").
class frmVinc : public ElencoScansione {
 public:
  frmVinc(Programma& programma, Cornice& cornice);

  static constexpr int kMinimoUltime = 1, kMassimoUltime = 5;
  /// The arrows have put `ultime` (1 to 5) into txtColpi.
  void UpDown1_Change(int ultime);

  Riquadro Frame1{"Ultime Estrazioni da Considerare"};

 private:
  std::filesystem::path scansione() override;
};

}  // namespace vaticlo
