#pragma once

#include <deque>
#include <functional>

#include "forms/controlli.h"
#include "forms/controlli_metodo.h"
#include "forms/finestra.h"
#include "methods/scansione.h"
#include "program/programma.h"

namespace vaticlo {

/// What the windows of the two scans share: the choice of methods, the progress, the report shown. An event
/// that comes while a scan is under way waits until it has ended, then runs.
class ElencoScansione : public Finestra, protected PannelloScansione {
 public:
  ElencoScansione(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  [[nodiscard]] bool occupata() const override { return inCorso_; }
  void optSelMetodo_Click(int indice);
  void btnCerca_Click();
  void btnCancella_Click();

  ControlliMetodo metodo;
  Avanzamento prgbar;
  AreaTesto RichTextBox1;
  Etichetta lblPrev;
  CampoTesto txtColpi;  ///< how many last draws count; on the screen in frmVinc only
  Pulsante btnStampa{"Stampa", "Stampa Previsioni"};
  Pulsante btnCancella{"&Esci", "Chiudi la finestra"};

 protected:
  void evento(const std::function<void()>& passi);
  /// Runs the scan and gives the report file that it wrote.
  virtual std::filesystem::path scansione() = 0;

  [[nodiscard]] SceltaMetodo scelta() const override { return metodo.scelta(); }
  [[nodiscard]] std::string txtColpi_Text() const override { return txtColpi.Text(); }
  void prgbar_Value(int valore) override { prgbar.Value(valore); }
  void prgbar_Max(int massimo) override { prgbar.Max(massimo); }
  void mostraRapporto(bool qualcosa) override;

  Programma& programma_;

 private:
  void cerca();

  bool inCorso_ = false;   ///< a scan is under way
  bool inEvento_ = false;  ///< an event is under way, with those that it causes
  std::deque<std::function<void()>> inAttesa_;
};

}  // namespace vaticlo
