#pragma once

#include <vector>

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "forms/prospetto.h"
#include "operations/copie.h"
#include "program/programma.h"

namespace vaticlo {

/// The dated copies of archive and methods; one of them is brought back after a question.
class frmCopie : public Finestra {
 public:
  frmCopie(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void copie_Change();
  void btnRipristina_Click();
  void btnEsci_Click();

  Etichetta lblNota{
      "Prima di aggiornare, importare, aggiungere o eliminare, il programma mette da parte quel che c'era: "
      "una "
      "copia al giorno, le ultime dieci, nella cartella copie."};
  Prospetto copie;
  Pulsante btnRipristina{"&Torna a questa copia", "Rimette al suo posto quel che la copia contiene"};
  Pulsante btnEsci{"&Esci", "Chiudi la finestra"};

 private:
  void rileggi();

  Programma& programma_;
  std::vector<Copia> elenco_;
};

}  // namespace vaticlo
