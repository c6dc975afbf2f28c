#pragma once

#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Renames or deletes a method, after a question.
class frmGestioneMetodi : public Finestra {
 public:
  frmGestioneMetodi(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void cmbMetodo_Click();
  void btnRinomina_Click();
  void btnElimina_Click();
  void btnEsci_Click();

  Riquadro Frame1{"Seleziona &Metodo"}, Frame2{"&Nuovo nome"};
  Elenco cmbMetodo;
  CampoTesto txtNome;
  Pulsante btnRinomina{"&Rinomina", "Cambia il nome del metodo"};
  Pulsante btnElimina{"E&limina", "Elimina il metodo con le sue previsioni"};
  Pulsante btnEsci{"&Esci", "Chiudi la finestra"};

 private:
  [[nodiscard]] bool conferma(const std::string& domanda, Risposta predefinita);
  void fatto(const std::string& testo);
  [[nodiscard]] std::vector<std::string> esistenti() const;

  Programma& programma_;
};

}  // namespace vaticlo
