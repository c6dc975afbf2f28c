#pragma once

#include <filesystem>

#include "dialogs/finestra.h"
#include "methods/programma.h"

namespace vaticlo {

/// The user's guide, which stays open beside the other windows.
class frmGuida : public Finestra {
 public:
  frmGuida(Programma& programma, Cornice& cornice);

  void Form_Load() override;

  const std::filesystem::path pagina;
};

}  // namespace vaticlo
