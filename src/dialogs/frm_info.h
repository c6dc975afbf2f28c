#pragma once

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// The about window: four lines of text and nothing else.
class frmInfo : public Finestra {
 public:
  frmInfo(Programma& programma, Cornice& cornice);

  void Form_Load() override;

  Etichetta Label1{"Vaticlo"};
  Etichetta Label2{"Archivio, previsioni e verifiche per chi gioca al Lotto"};
  Etichetta Label3;
  Etichetta Label4{
      "I grafici sono di QCustomPlot: questo programma ha la licenza GPL, versione 3 o successiva"};
};

}  // namespace vaticlo
