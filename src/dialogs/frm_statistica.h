#pragma once

#include <array>

#include "forms/controlli.h"
#include "forms/controlli_metodo.h"
#include "forms/finestra.h"
#include "program/programma.h"
#include "statistics/clsstatistica.h"

namespace vaticlo {

/// The statistics dialog: a range of draws, a choice of methods, a run that can be stopped, its totals.
class frmStatistica : public Finestra, private PannelloCorsa {
 public:
  frmStatistica(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  [[nodiscard]] bool occupata() const override { return btnStop.Enabled(); }
  void interrompi() override { btnStop_Click(); }
  void DTInizio_Change();
  void DTFine_Change();
  void btnElabora_Click();
  void btnStop_Click();
  void btnVincite_Click();
  void btnPrev_Click();
  void btnStampa_Click();
  void btnCancella_Click();

  /// The number of the draw of a date, by four walks that never go back; 15001 when a walk runs off the grid.
  [[nodiscard]] int CercaData(int giorno, int mese, int anno, int secolo) const;

  ControlliMetodo metodo;
  Riquadro Frame1{"Opzioni di Ricerca"};
  Etichetta Label2Inizio{"Data inizio ricerca:"}, Label4{"Es.N."}, Label2Fine{"Data fine ricerca:"},
      Label5{"Es.N."};
  SelettoreData DTInizio, DTFine;
  std::array<CampoTesto, 2> txtestr;  ///< the numbers of the first and the last draw: the range
  Avanzamento prgbar;
  AreaTesto RichTextBox1;
  Pulsante btnElabora{"&Elabora", "Elabora Statistica"};
  Pulsante btnStop{"&Interrompi", "Interrompi Elaborazione"};
  Pulsante btnVincite{"&Vincite", "Visualizza Vincite"};
  Pulsante btnPrev{"I&n gioco", "Visualizza previsioni in gioco"};
  Pulsante btnStampa{"Stampa", "Stampa Statistica"};
  Pulsante btnCancella{"&Esci", "Chiudi la finestra"};

 private:
  void cercaNumero(const SelettoreData& selettore, CampoTesto& campo);
  void prendiUltima();
  [[nodiscard]] bool rifiutaNumero(CampoTesto& campo, const char* data);
  [[nodiscard]] bool rifiutaIntervallo();
  void mostraTotali();
  void apriRisultati(bool vincite);

  [[nodiscard]] SceltaMetodo scelta() const override { return metodo.scelta(); }
  void prgbar_Value(int valore) override { prgbar.Value(valore); }
  void prgbar_Max(int massimo) override { prgbar.Max(massimo); }
  void corsaIniziata() override;
  void corsaInterrotta() override;
  void comandiACorsaFerma();

  Programma& programma_;
};

}  // namespace vaticlo
