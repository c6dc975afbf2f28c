#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "desktop/campo_testo.h"
#include "desktop/confine.h"
#include "desktop/elenco_vista.h"
#include "desktop/validatore.h"
#include "forms/controlli.h"
#include "forms/finestra.h"

class QAbstractButton;
class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QRadioButton;
class QScrollBar;
class QToolButton;
class QWidget;

namespace vaticlo {

class Grafico;
class GraficoVista;
class Prospetto;
class ProspettoVista;
class SelettoreDataVista;
class xpcmdbutton;
class xpgroupbox;
class xpradiobutton;

/// Binds the controls of a dialog to the widgets that draw them, two ways. Each call makes the widget of a
/// model, gives it the control's name, and keeps the two alike: the model's changes are drawn, what the user
/// does goes to the model and runs its event procedure inside the failure boundary. The binding is a child of
/// the view and keeps the dialog; it is deleted before the widgets, which then follow no control any more.
class Legame : public QObject {
 public:
  Legame(QWidget* vista, std::shared_ptr<Finestra> finestra, const Confine& confine);
  ~Legame() override;

  QLabel* etichetta(Etichetta& modello, const QString& nome);
  CampoTestoVista* campo(CampoTesto& modello, const QString& nome);
  QScrollBar* barra(BarraScorrimento& modello, const QString& nome);
  QComboBox* elenco(Elenco& modello, const QString& nome,
                    ElencoVista::Tipo tipo = ElencoVista::Tipo::Modificabile);
  QRadioButton* opzione(Opzione& modello, const QString& nome);
  xpradiobutton* opzioneDisegnata(Opzione& modello, const QString& caption, const QString& nome);
  xpcmdbutton* pulsante(Pulsante& modello, const QString& nome);
  /// A small one for a word, without the look of the others.
  QToolButton* pulsanteBreve(Pulsante& modello, const QString& nome);
  /// A button that shows a picture instead of a caption.
  QToolButton* pulsanteConImmagine(Pulsante& modello, const QString& nome, const QString& chiave);
  SelettoreDataVista* selettoreData(SelettoreData& modello, const QString& nome);
  QProgressBar* avanzamento(Avanzamento& modello, const QString& nome);
  QGroupBox* riquadro(Riquadro& modello, const QString& nome);
  xpgroupbox* riquadroDisegnato(Riquadro& modello, const QString& nome);
  QPlainTextEdit* area(AreaTesto& modello, const QString& nome);
  GraficoVista* grafico(Grafico& modello, const QString& nome);
  ProspettoVista* prospetto(Prospetto& modello, const QString& nome);

  [[nodiscard]] QWidget* vista() const { return vista_; }
  /// That of the window, for what a view connects itself.
  [[nodiscard]] const Confine& confine() const { return confine_; }

 private:
  template <class Widget>
  Widget* chiamato(Widget* widget, const QString& nome);
  void premuto(Pulsante& modello);
  void dalTasto(const Pulsante& modello, QAbstractButton* widget);
  void segui(Controllo& modello, std::function<void()> disegna);

  QWidget* vista_;
  std::shared_ptr<Finestra> finestra_;
  const Confine confine_;  // the one given, with the name of the window
  Validatore validatore_;
  std::vector<Controllo*> seguiti_;
};

}  // namespace vaticlo
