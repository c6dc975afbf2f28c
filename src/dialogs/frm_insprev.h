#pragma once

#include <array>

#include "archive/ruota.h"
#include "forms/controlli_estrazione.h"
#include "forms/finestra.h"
#include "methods/metodo.h"
#include "methods/testi_campi.h"
#include "program/programma.h"

namespace vaticlo {

/// The prediction editor, in two variants: to create a prediction, or to modify and delete the stored ones.
/// Which one it is, PrevisioneInModifica says when it opens, and so it stays.
class frmInsPrev : public Finestra {
 public:
  frmInsPrev(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  void estrazioniAggiunte() override {
    if (!modifica_) archivioNuovo();
  }
  void VScroll1_Change();
  void cmbMetodo_Click();
  void cmbMetodo_Change();
  void cmbPrevisione_Click();
  void btnElabora_Click();
  void btnElimina_Click();
  void btnCancella_Click();
  /// Enter in the field beside the bar: shows the draw of that number or date.
  void txtVai_Invio();
  /// Puts the wheel into `txtRuote`, or takes it away when it is there.
  void btnRuota_Click(int codice);
  [[nodiscard]] bool modifica() const { return modifica_; }

  Riquadro Frame1{"Seleziona Metodo"}, Frame2{"Estrazione di Calcolo"}, Frame3{"Previsione da Salvare"},
      Frame4{"Ruote di gioco"}, Frame5{"Colpi di gioco"}, Frame6{"Combinazioni da giocare"}, Frame7{"Ambate"},
      Frame8{"Ambi Secchi"}, Frame9{"Sorti Superiori"}, Frame10{"Seleziona Previsione"},
      Frame11{"Numero 899"};
  Etichetta Label1{"Estrazione n"}, Label13{"del"};
  Elenco cmbMetodo, cmbPrevisione, cmbColpi;
  ControlliEstrazione estrazione;
  CampoTesto txtNum, txtRuote, txtAmbate, txtAmbi, txtSup, txtVai;
  std::array<Pulsante, kTutte> btnRuota;  ///< wheel code 1 to 12
  Etichetta lblLettura;                   ///< what the fields stand for, read back while one types
  Pulsante btnElabora{"&Salva", "Salva Previsione"};
  Pulsante btnCancella{"&Esci", "Chiudi la finestra"};
  Pulsante btnElimina{"&Elimina", "Elimina la previsione"};

 private:
  void mostraUltima();
  [[nodiscard]] TestiPrevisione testiDi(const FileMetodo& metodo, int slot) const;
  void visualizza(int n);
  /// The save up to the writing of the file. False when it was refused, which a message has said.
  [[nodiscard]] bool salva();
  [[nodiscard]] bool rifiutaCampiVuoti();
  [[nodiscard]] TestiPrevisione testi() const;
  void ricomincia();
  void rileggi();
  bool rifiuta(const std::string& testo, Icona icona = Icona::Esclamazione);

  Programma& programma_;
  bool modifica_ = false;
};

}  // namespace vaticlo
