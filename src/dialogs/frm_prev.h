#pragma once

#include "dialogs/elenco_scansione.h"

namespace vaticlo {

/// The predictions in play.
class frmPrev : public ElencoScansione {
 public:
  frmPrev(Programma& programma, Cornice& cornice);
  void btnStampa_Click();

 private:
  std::filesystem::path scansione() override;
};

}  // namespace vaticlo
