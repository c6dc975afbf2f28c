#pragma once

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// The about window: three lines of text and nothing else.
class frmInfo : public Finestra {
 public:
  frmInfo(Programma& programma, Cornice& cornice);

  void Form_Load() override;

  Etichetta Label1{"Vaticlo"};
  Etichetta Label2{"Archivio, previsioni e verifiche per chi gioca al Lotto"};
  Etichetta Label3;
};

}  // namespace vaticlo
