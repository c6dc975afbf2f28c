#pragma once

#include <array>
#include <chrono>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "analysis/confronto.h"
#include "dialogs/campi_intervallo.h"
#include "dialogs/figure_caso.h"
#include "forms/controlli.h"
#include "forms/controlli_metodo.h"
#include "forms/finestra.h"
#include "forms/grafico.h"
#include "forms/prospetto.h"
#include "program/programma.h"

namespace vaticlo {

/// How long the runs will still take, in words; empty as long as none is done.
[[nodiscard]] std::string testoRimasto(int fatte, int prove, std::chrono::milliseconds trascorso);

/// The comparison with chance: methods, a range of draws, a number of runs; the runs, which can be stopped,
/// and what they say of each method in a sentence, pictures and figures.
class frmCaso : public Finestra {
 public:
  frmCaso(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  [[nodiscard]] bool occupata() const override { return btnStop.Enabled(); }
  void interrompi() override { btnStop_Click(); }
  void optSelMetodo_Click(int indice) { metodo.optSelMetodo_Click(indice); }
  void optFigura_Click(FiguraCaso figura);
  void confronti_Change();
  void btnElabora_Click();
  void btnStop_Click() { fermata_.request_stop(); }
  void btnCancella_Click();

  ControlliMetodo metodo;
  CampiIntervallo estrazioni;
  Riquadro Frame3{"Prove a caso"};
  Etichetta lblProve{"&Quante"}, lblSeme{"Se&me"};
  CampoTesto txtprove, txtseme;
  Avanzamento prgbar;
  Etichetta lblRimasto;
  Prospetto confronti;
  Etichetta lblFrase, lblAvvertenza;
  std::array<Opzione, kFigureCaso.size()> optFigura;
  Grafico grafico;
  Prospetto cifre;
  Pulsante btnElabora{"&Elabora", "Confronta con il caso"};
  Pulsante btnStop{"&Interrompi", "Si ferma e tiene le prove fatte"};
  Pulsante btnCancella{"Es&ci", "Chiudi la finestra"};

 private:
  struct Richiesta {
    IntervalloEstrazioni intervallo;
    OpzioniProve opzioni;
  };
  [[nodiscard]] std::optional<Richiesta> leggiRichiesta();
  void rifiuta(const std::string& testo, CampoTesto& campo);
  [[nodiscard]] std::vector<Confronto> esegui(const Richiesta& richiesta);
  void inCorso(bool corre);
  void mostraScelto();

  Programma& programma_;
  std::stop_source fermata_;
  std::vector<Confronto> risultati_;
  FiguraCaso figura_ = FiguraCaso::Vincenti;
};

}  // namespace vaticlo
