#include "desktop/legame.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

#include "controls/xpcmdbutton.h"
#include "controls/xpgroupbox.h"
#include "controls/xpradiobutton.h"
#include "desktop/area_rapporto.h"
#include "desktop/con_fuoco.h"
#include "desktop/grafico_vista.h"
#include "desktop/immagini.h"
#include "desktop/prospetto_vista.h"
#include "desktop/selettore_data.h"

namespace vaticlo {

namespace {

QString testo(const std::string& utf8) { return QString::fromStdString(utf8); }

}  // namespace

Legame::Legame(QWidget* vista, std::shared_ptr<Finestra> finestra, const Confine& confine)
    : QObject(vista),
      vista_(vista),
      finestra_(std::move(finestra)),
      confine_(confine.nella(finestra_->Caption())),
      validatore_(vista, confine_) {}

Legame::~Legame() {
  for (auto* modello : seguiti_) {
    modello->osserva({});
    modello->SetFocus = [] {};
  }
}

template <class Widget>
Widget* Legame::chiamato(Widget* widget, const QString& nome) {
  widget->setObjectName(nome);
  return widget;
}

void Legame::segui(Controllo& modello, std::function<void()> disegna) {
  disegna();
  modello.osserva(std::move(disegna));
  seguiti_.push_back(&modello);
}

QLabel* Legame::etichetta(Etichetta& modello, const QString& nome) {
  auto* widget = chiamato(new QLabel(vista_), nome);
  widget->setTextFormat(Qt::PlainText);
  segui(modello, [&modello, widget] {
    widget->setText(testo(modello.Caption()));
    widget->setVisible(modello.Visible());
  });
  return widget;
}

CampoTestoVista* Legame::campo(CampoTesto& modello, const QString& nome) {
  auto* widget = chiamato(new CampoTestoVista(modello, vista_), nome);
  if (modello.Validate) validatore_.prova(widget, [&modello] { return modello.Validate(); });
  connect(widget, &QLineEdit::textEdited, this, [this, &modello] {
    confine_.esegui([&] {
      if (modello.Change) modello.Change();
    });
  });
  segui(modello, [widget] { widget->aggiorna(); });
  connect(widget, &QLineEdit::returnPressed, this, [this, &modello] {
    confine_.esegui([&] {
      if (modello.Invio) modello.Invio();
    });
  });
  modello.SetFocus = [widget] {
    widget->setFocus(Qt::OtherFocusReason);
    widget->selectAll();
  };
  return widget;
}

QScrollBar* Legame::barra(BarraScorrimento& modello, const QString& nome) {
  auto* widget = chiamato(new ConFuoco<QScrollBar>(Qt::Vertical, vista_), nome);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setSingleStep(modello.SmallChange);
  widget->setPageStep(modello.LargeChange);
  segui(modello, [&modello, widget] {
    const QSignalBlocker silenzio(widget);
    widget->setRange(modello.Min(), modello.Max());
    widget->setValue(modello.Value());
  });
  connect(widget, &QScrollBar::valueChanged, this,
          [this, &modello](int valore) { confine_.esegui([&] { modello.Value(valore); }); });
  return widget;
}

QComboBox* Legame::elenco(Elenco& modello, const QString& nome, ElencoVista::Tipo tipo) {
  auto* widget = chiamato(new ElencoVista(modello, tipo, confine_, vista_), nome);
  segui(modello, [widget] { widget->aggiorna(); });
  return widget;
}

QRadioButton* Legame::opzione(Opzione& modello, const QString& nome) {
  auto* widget = chiamato(new ConFuoco<QRadioButton>(vista_), nome);
  segui(modello, [&modello, widget] {
    widget->setText(testo(modello.Caption()));
    if (modello.Value()) widget->setChecked(true);
    widget->setEnabled(modello.Enabled());
  });
  connect(widget, &QRadioButton::clicked, this, [this, &modello] {
    confine_.esegui([&] {
      if (modello.Click) modello.Click();
    });
  });
  return widget;
}

xpradiobutton* Legame::opzioneDisegnata(Opzione& modello, const QString& caption, const QString& nome) {
  auto* widget = chiamato(new xpradiobutton(caption, vista_), nome);
  segui(modello, [&modello, widget] {
    widget->setValue(modello.Value());
    widget->setEnabled(modello.Enabled());
  });
  connect(widget, &xpradiobutton::Click, this, [this, &modello] {
    confine_.esegui([&] {
      if (modello.Click) modello.Click();
    });
  });
  // What the control makes of its value after the click is the value.
  connect(widget, &xpradiobutton::toggled, this, [&modello](bool acceso) { modello.Value(acceso); });
  return widget;
}

xpcmdbutton* Legame::pulsante(Pulsante& modello, const QString& nome) {
  auto* widget = chiamato(new xpcmdbutton(vista_), nome);
  if (!modello.CausesValidation) validatore_.nonChiede(widget);
  widget->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  segui(modello, [&modello, widget] {
    widget->setCaption(testo(modello.Caption()));
    widget->setToolTip(testo(modello.ToolTipText()));
    widget->setEnabled(modello.Enabled());
    widget->setVisible(modello.Visible());
  });
  connect(widget, &xpcmdbutton::Click, this, [this, &modello] { premuto(modello); });
  dalTasto(modello, widget);
  return widget;
}

void Legame::dalTasto(const Pulsante& modello, QAbstractButton* widget) {
  if (modello.tasto.empty()) return;
  auto* tasto = new QShortcut(QKeySequence(testo(modello.tasto)), vista_);
  tasto->setContext(Qt::WidgetWithChildrenShortcut);
  connect(tasto, &QShortcut::activated, widget, [widget] { widget->click(); });
}

QToolButton* Legame::pulsanteBreve(Pulsante& modello, const QString& nome) {
  auto* widget = chiamato(new ConFuoco<QToolButton>(vista_), nome);
  widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  segui(modello, [&modello, widget] {
    widget->setText(testo(modello.Caption()));
    widget->setEnabled(modello.Enabled());
  });
  connect(widget, &QToolButton::clicked, this, [this, &modello] { premuto(modello); });
  return widget;
}

QToolButton* Legame::pulsanteConImmagine(Pulsante& modello, const QString& nome, const QString& chiave) {
  auto* widget = chiamato(new ConFuoco<QToolButton>(vista_), nome);
  widget->setIcon(immagine(chiave));
  widget->setIconSize(QSize(24, 24));
  widget->setFocusPolicy(Qt::StrongFocus);
  segui(modello, [&modello, widget] {
    widget->setToolTip(testo(modello.ToolTipText()));
    widget->setAccessibleName(widget->toolTip());
    widget->setEnabled(modello.Enabled());
  });
  connect(widget, &QToolButton::clicked, this, [this, &modello] { premuto(modello); });
  dalTasto(modello, widget);
  return widget;
}

void Legame::premuto(Pulsante& modello) {
  confine_.esegui([&] {
    if (modello.Click) modello.Click();
  });
}

SelettoreDataVista* Legame::selettoreData(SelettoreData& modello, const QString& nome) {
  auto* widget = chiamato(new SelettoreDataVista(modello, confine_, vista_), nome);
  if (!modello.CausesValidation) validatore_.nonChiede(widget);
  validatore_.prova(widget, [widget] { return widget->trattiene(); });
  segui(modello, [widget] { widget->aggiorna(); });
  return widget;
}

QProgressBar* Legame::avanzamento(Avanzamento& modello, const QString& nome) {
  auto* widget = chiamato(new QProgressBar(vista_), nome);
  segui(modello, [&modello, widget] {
    widget->setRange(0, std::max(1, modello.Max()));
    widget->setValue(modello.Value());
    widget->setVisible(modello.Visible());
  });
  return widget;
}

QGroupBox* Legame::riquadro(Riquadro& modello, const QString& nome) {
  auto* widget = chiamato(new QGroupBox(vista_), nome);
  segui(modello, [&modello, widget] {
    widget->setTitle(testo(modello.Caption()));
    widget->setVisible(modello.Visible());
  });
  return widget;
}

xpgroupbox* Legame::riquadroDisegnato(Riquadro& modello, const QString& nome) {
  auto* widget = chiamato(new xpgroupbox(vista_), nome);
  segui(modello, [&modello, widget] {
    widget->setCaption(testo(modello.Caption()));
    widget->setVisible(modello.Visible());
  });
  return widget;
}

QPlainTextEdit* Legame::area(AreaTesto& modello, const QString& nome) {
  auto* widget = chiamato(new AreaRapporto(modello, vista_), nome);
  segui(modello, [widget] { widget->aggiorna(); });
  return widget;
}

GraficoVista* Legame::grafico(Grafico& modello, const QString& nome) {
  auto* widget = chiamato(new GraficoVista(modello, vista_), nome);
  segui(modello, [widget] { widget->aggiorna(); });
  return widget;
}

ProspettoVista* Legame::prospetto(Prospetto& modello, const QString& nome) {
  auto* widget = chiamato(new ProspettoVista(modello, confine_, vista_), nome);
  segui(modello, [widget] { widget->aggiorna(); });
  modello.SetFocus = [widget] { widget->setFocus(Qt::OtherFocusReason); };
  return widget;
}

}  // namespace vaticlo
