#pragma once

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Shows one of the two lists of the last statistics run, read anew each time the window becomes the active
/// one. Meant: its caption stays that of its first opening.
class frmMigliore : public Finestra {
 public:
  frmMigliore(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void Form_Activate() override;

  AreaTesto RichTextBox1;

 private:
  Programma& programma_;
};

}  // namespace vaticlo
