#pragma once

#include <optional>

#include "check/previsioni_per_estrazione.h"
#include "forms/controlli_estrazione.h"
#include "forms/controlli_metodo.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// The check dialog: walks the draws and shows at each one how the predictions calculated on it turned out.
/// Beside the report, whose text stays as it is, outcomes and the numbers of the draw that have won stand
/// out.
class frmMetodo : public Finestra {
 public:
  frmMetodo(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void Form_Activate() override { previsioni_.reset(); }
  void archivioNuovo() override;
  /// The check of one method on a draw of the archive.
  void mostra(const std::string& nome, int n);
  void VScroll1_Change();
  void optSelMetodo_Click(int indice);
  void cmbMetodo_Click();
  void btnTrova_Click();
  void btnPrecedente_Click();
  void btnSeguente_Click();
  void btnStampa_Click();
  void btnAnnulla_Click();

  ControlliMetodo metodo;
  Etichetta Label1{"Estrazione n°"}, Label13{"del"};
  ControlliEstrazione estrazione;
  Riquadro xpgroupbox1;
  Etichetta titoloGiocabili{"Giocabili"}, titoloVincenti{"Vincenti"}, titoloInGioco{"In gioco"};
  CampoTesto txtgiocabili, txtvincenti, txtingioco;
  AreaTesto RichTextBox1;
  Etichetta lblNota;  ///< what there is to say of the draw shown beside its report
  Pulsante btnPrecedente{"◂ &Previsioni prima", "L'estrazione precedente con previsioni (Ctrl+Pag su)"};
  Pulsante btnSeguente{"Previsioni &dopo ▸", "L'estrazione seguente con previsioni (Ctrl+Pag giù)"};
  Pulsante btnTrova{"Cerca Estrazione", "Cerca Estrazione di gioco"};
  Pulsante btnStampa{"Stampa", "Stampa Previsione"};
  Pulsante btnAnnulla{"Esci", "Chiudi la finestra"};

 private:
  void visualizza(int n);
  void mostraUltima();
  void verifica();
  void rileva();
  void vaiA(std::optional<int> estrazione, const char* dove);
  [[nodiscard]] const PrevisioniPerEstrazione& previsioni();

  Programma& programma_;
  SceltaMetodo scelta_;                                // of the methods below
  std::optional<PrevisioniPerEstrazione> previsioni_;  // none: to be read when there is a use for them
};

}  // namespace vaticlo
