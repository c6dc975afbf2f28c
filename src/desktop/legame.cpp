#include "desktop/legame.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include "controls/xpcmdbutton.h"
#include "controls/xpgroupbox.h"
#include "controls/xpradiobutton.h"
#include "desktop/immagini.h"
#include "desktop/selettore_data.h"

namespace vaticlo {

namespace {

QString testo(const std::string& utf8) { return QString::fromStdString(utf8); }

/// A list that tells when it is about to show its items.
class ElencoVista : public QComboBox {
 public:
  ElencoVista(std::function<void()> apre, QWidget* padre) : QComboBox(padre), apre_(std::move(apre)) {}
  void showPopup() override {
    apre_();
    QComboBox::showPopup();
  }

 private:
  std::function<void()> apre_;
};

void disegnaVoci(QComboBox& combo, const Elenco& modello) {
  const auto& voci = modello.voci();
  bool uguali = combo.count() == static_cast<int>(voci.size());
  for (int n = 0; uguali && n < combo.count(); ++n)
    uguali = combo.itemText(n) == testo(voci[static_cast<std::size_t>(n)].testo);
  if (uguali) return;
  combo.clear();
  for (const auto& voce : voci) combo.addItem(testo(voce.testo));
}

}  // namespace

Legame::Legame(QWidget* vista, std::shared_ptr<Finestra> finestra, const Confine& confine)
    : QObject(vista),
      vista_(vista),
      finestra_(std::move(finestra)),
      confine_(confine),
      validatore_(vista, confine) {}

Legame::~Legame() {
  for (auto* modello : seguiti_) modello->osserva({});
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
  segui(modello, [widget] { widget->aggiorna(); });
  return widget;
}

QScrollBar* Legame::barra(BarraScorrimento& modello, const QString& nome) {
  auto* widget = chiamato(new QScrollBar(Qt::Vertical, vista_), nome);
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

QComboBox* Legame::elenco(Elenco& modello, const QString& nome, Tipo tipo) {
  const auto apre = [this, &modello] {
    confine_.esegui([&] {
      if (modello.DropDown) modello.DropDown();
    });
  };
  auto* widget = chiamato(new ElencoVista(apre, vista_), nome);
  widget->setEditable(tipo == Tipo::Modificabile);
  widget->setInsertPolicy(QComboBox::NoInsert);
  widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  segui(modello, [&modello, widget] {
    const QSignalBlocker silenzio(widget);
    disegnaVoci(*widget, modello);
    const auto mostrato = testo(modello.Text());
    const int indice = modello.ListIndex() >= 0
                           ? modello.ListIndex()
                           : widget->findText(mostrato, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (widget->currentIndex() != indice) widget->setCurrentIndex(indice);
    if (widget->isEditable() && widget->currentText() != mostrato) widget->setEditText(mostrato);
    if (!widget->isEditable()) widget->setPlaceholderText(mostrato);
    widget->setEnabled(modello.Enabled());
    widget->setVisible(modello.Visible());
  });
  connect(widget, &QComboBox::activated, this,
          [this, &modello](int indice) { confine_.esegui([&] { modello.scegli(indice); }); });
  if (widget->isEditable()) {
    // A typed name is a text and nothing more: the toolkit neither completes it nor takes it for a choice.
    widget->setCompleter(nullptr);
    disconnect(widget->lineEdit(), &QLineEdit::editingFinished, widget, nullptr);
    connect(widget->lineEdit(), &QLineEdit::textEdited, this,
            [&modello](const QString& digitato) { modello.Text(digitato.toStdString()); });
  }
  return widget;
}

QRadioButton* Legame::opzione(Opzione& modello, const QString& nome) {
  auto* widget = chiamato(new QRadioButton(vista_), nome);
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
  return widget;
}

QToolButton* Legame::pulsanteConImmagine(Pulsante& modello, const QString& nome, const QString& chiave) {
  auto* widget = chiamato(new QToolButton(vista_), nome);
  widget->setIcon(immagine(chiave));
  widget->setIconSize(QSize(24, 24));
  widget->setFocusPolicy(Qt::StrongFocus);
  segui(modello, [&modello, widget] {
    widget->setToolTip(testo(modello.ToolTipText()));
    widget->setAccessibleName(widget->toolTip());
    widget->setEnabled(modello.Enabled());
  });
  connect(widget, &QToolButton::clicked, this, [this, &modello] { premuto(modello); });
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
  auto* widget = chiamato(new QPlainTextEdit(vista_), nome);
  widget->setReadOnly(true);
  widget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  widget->setTabChangesFocus(true);
  widget->setUndoRedoEnabled(false);
  segui(modello, [&modello, widget, mostrato = std::string()]() mutable {
    if (modello.Text() != mostrato) {
      mostrato = modello.Text();
      widget->setPlainText(testo(mostrato));
    }
    widget->setVisible(modello.Visible());
  });
  return widget;
}

}  // namespace vaticlo
