#pragma once

#include "forms/controlli_estrazione.h"
#include "forms/controlli_metodo.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// The check dialog: walks the draws and shows at each one how the predictions calculated on it turned out.
class frmMetodo : public Finestra {
 public:
  frmMetodo(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  void VScroll1_Change();
  void optSelMetodo_Click(int indice);
  void cmbMetodo_Click();
  void btnTrova_Click();
  void btnStampa_Click();
  void btnAnnulla_Click();

  ControlliMetodo metodo;
  Etichetta Label1{"Estrazione n°"}, Label13{"del"};
  ControlliEstrazione estrazione;
  Riquadro xpgroupbox1;
  Etichetta titoloGiocabili{"Giocabili"}, titoloVincenti{"Vincenti"}, titoloInGioco{"In gioco"};
  CampoTesto txtgiocabili, txtvincenti, txtingioco;
  AreaTesto RichTextBox1;
  Pulsante btnTrova{"Cerca Estrazione", "Cerca Estrazione di gioco"};
  Pulsante btnStampa{"Stampa", "Stampa Previsione"};
  Pulsante btnAnnulla{"Esci", "Chiudi la finestra"};

 private:
  void visualizza(int n);
  void mostraUltima();
  void verifica();

  Programma& programma_;
};

}  // namespace vaticlo
