#pragma once

#include "forms/controlli_estrazione.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Draw maintenance: walks the archive draw by draw, finds, corrects and deletes draws.
class frmModifica : public Finestra {
 public:
  frmModifica(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override { btnAnnulla_Click(); }
  void estrazioniAggiunte() override {}  // it takes the new last draw when it becomes the active one
  void Form_Activate() override;
  void VScroll1_Change();
  void btnSalva_Click();
  void btnCancella_Click();
  void btnTrova_Click();
  void btnAnnulla_Click();

  Etichetta Label1{"Estrazione n°"}, Label13{"del"};
  ControlliEstrazione estrazione;
  Pulsante btnSalva{"&Salva", "Salva Estrazione"};
  Pulsante btnCancella{"&Elimina", "Cancella l'estrazione"};
  Pulsante btnTrova{"&Trova", "Trova l'estrazione"};
  Pulsante btnAnnulla{"E&sci", "Esci dalla finestra"};

 private:
  void visualizza(int n);

  Programma& programma_;
};

}  // namespace vaticlo
