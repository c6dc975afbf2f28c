#include "desktop/elenco_vista.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>

#include "desktop/suggerimento.h"

namespace vaticlo {

namespace {

constexpr int kRigheOfferte = 8;

QString testo(const std::string& utf8) { return QString::fromStdString(utf8); }

/// The field of a list: without the focus it shows that a text goes on.
class CampoElenco : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void paintEvent(QPaintEvent* evento) override {
    QStyleOptionFrame opzioni;
    initStyleOption(&opzioni);
    const auto area =
        style()->subElementRect(QStyle::SE_LineEditContents, &opzioni, this).adjusted(2, 1, -2, -1);
    if (hasFocus() || fontMetrics().horizontalAdvance(text()) <= area.width()) {
      QLineEdit::paintEvent(evento);
      return;
    }
    QPainter pittore(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &opzioni, &pittore, this);
    pittore.setPen(palette().color(QPalette::Text));
    pittore.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
  }
};

}  // namespace

ElencoVista::ElencoVista(Elenco& modello, Tipo tipo, const Confine& confine, QWidget* padre)
    : QComboBox(padre), modello_(modello), confine_(confine) {
  setInsertPolicy(QComboBox::NoInsert);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, &ElencoVista::scegli);
  if (tipo == Tipo::Chiuso) return;
  setLineEdit(new CampoElenco(this));
  // A typed name is a text and nothing more: the toolkit neither completes it nor takes it for a choice.
  setCompleter(nullptr);
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& digitato) {
    confine_.esegui([&] { modello_.digita(digitato.toStdString()); });
    offri(digitato);
  });
}

void ElencoVista::aggiorna() {
  const QSignalBlocker silenzio(this);
  disegnaVoci();
  const auto mostrato = testo(modello_.Text());
  const bool digitato = isEditable() && modello_.ListIndex() < 0 && currentText() == mostrato;
  if (!digitato) {
    const int indice =
        modello_.ListIndex() >= 0 ? modello_.ListIndex() : findText(mostrato, Qt::MatchExactly);
    if (currentIndex() != indice) setCurrentIndex(indice);
    if (isEditable() && currentText() != mostrato) setEditText(mostrato);
    if (isEditable() && !hasFocus()) lineEdit()->setCursorPosition(0);
    if (!isEditable()) setPlaceholderText(mostrato);
  }
  setEnabled(modello_.Enabled());
  setVisible(modello_.Visible());
}

void ElencoVista::disegnaVoci() {
  const auto& voci = modello_.voci();
  bool uguali = count() == static_cast<int>(voci.size());
  for (int n = 0; uguali && n < count(); ++n)
    uguali = itemText(n) == testo(voci[static_cast<std::size_t>(n)].testo);
  if (uguali) return;
  clear();
  for (const auto& voce : voci) {
    addItem(testo(voce.testo));
    setItemData(count() - 1, perSuggerimento(testo(voce.testo)), Qt::ToolTipRole);
  }
}

void ElencoVista::leggiVoci() {
  confine_.esegui([this] {
    if (modello_.DropDown) modello_.DropDown();
  });
}

void ElencoVista::scegli(int indice) {
  QToolTip::hideText();
  confine_.esegui([&] { modello_.scegli(indice); });
}

void ElencoVista::showPopup() {
  delete suggerimenti_;
  leggiVoci();
  QComboBox::showPopup();
}

bool ElencoVista::event(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip) {
    const auto nota = modello_.Nota ? testo(modello_.Nota()) : QString();
    const bool intero = fontMetrics().horizontalAdvance(currentText()) + 2 * height() <= width();
    setToolTip(perSuggerimento(nota.isEmpty() && !intero ? currentText() : nota));
  }
  return QComboBox::event(evento);
}

void ElencoVista::keyPressEvent(QKeyEvent* tasto) {
  if (neiSuggerimenti(*tasto)) return;
  const bool freccia = tasto->key() == Qt::Key_Up || tasto->key() == Qt::Key_Down ||
                       tasto->key() == Qt::Key_PageUp || tasto->key() == Qt::Key_PageDown;
  if (freccia)
    scorri([&] { QComboBox::keyPressEvent(tasto); });
  else
    QComboBox::keyPressEvent(tasto);
}

void ElencoVista::wheelEvent(QWheelEvent* evento) {
  scorri([&] { QComboBox::wheelEvent(evento); });
}

template <class Passo>
void ElencoVista::scorri(Passo passo) {
  leggiVoci();
  const auto scritto = currentText();
  if (isEditable()) {
    const QSignalBlocker silenzio(this);
    setCurrentIndex(findText(scritto, Qt::MatchExactly));
  }
  passo();
  if (currentIndex() < 0 && isEditable() && currentText() != scritto) setEditText(scritto);
}

void ElencoVista::offri(const QString& digitato) {
  delete suggerimenti_;
  leggiVoci();
  QStringList simili;
  for (int n = 0; n < count() && !digitato.isEmpty(); ++n)
    if (itemText(n).startsWith(digitato, Qt::CaseInsensitive)) simili << itemText(n);
  const auto nota = simili.isEmpty() && modello_.Nota ? testo(modello_.Nota()) : QString();
  QToolTip::showText(mapToGlobal(rect().bottomLeft()), perSuggerimento(nota), this);  // none: it goes
  if (simili.isEmpty() || simili == QStringList(digitato)) return;
  // A window that takes neither the focus nor the mouse: a click elsewhere is a click there.
  suggerimenti_ = new QListWidget(this);
  suggerimenti_->setObjectName(QStringLiteral("suggerimenti"));
  suggerimenti_->setWindowFlags(Qt::ToolTip);
  suggerimenti_->setFocusPolicy(Qt::NoFocus);
  suggerimenti_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  suggerimenti_->addItems(simili);
  const auto righe = std::min<qsizetype>(simili.size(), kRigheOfferte);
  suggerimenti_->setGeometry(
      QRect(mapToGlobal(rect().bottomLeft()),
            QSize(width(), suggerimenti_->sizeHintForRow(0) * static_cast<int>(righe) + 4)));
  connect(suggerimenti_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* voce) {
    const auto scelto = voce->text();
    suggerimenti_->deleteLater();
    suggerimenti_ = nullptr;
    scegli(findText(scelto, Qt::MatchExactly));
  });
  suggerimenti_->show();
  qApp->installEventFilter(this);
}

// What is offered stands in a window of its own, which does not move with this one.
bool ElencoVista::eventFilter(QObject* oggetto, QEvent* evento) {
  const auto* widget = qobject_cast<const QWidget*>(oggetto);
  const bool altrove =
      evento->type() == QEvent::MouseButtonPress && widget != nullptr && widget->window() != suggerimenti_;
  const bool spostata = evento->type() == QEvent::Move && oggetto == window();
  if (altrove || spostata) delete suggerimenti_;
  return QComboBox::eventFilter(oggetto, evento);
}

bool ElencoVista::neiSuggerimenti(const QKeyEvent& tasto) {
  if (!suggerimenti_) return false;
  const int riga = suggerimenti_->currentRow();
  switch (tasto.key()) {
    case Qt::Key_Down:
      suggerimenti_->setCurrentRow(std::min(riga + 1, suggerimenti_->count() - 1));
      return true;
    case Qt::Key_Up:
      suggerimenti_->setCurrentRow(std::max(riga - 1, -1));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (riga >= 0) {
        Q_EMIT suggerimenti_->itemClicked(suggerimenti_->item(riga));
        return true;
      }
      break;
    case Qt::Key_Escape:
      delete suggerimenti_;
      return true;
    default:
      return false;
  }
  delete suggerimenti_;
  return false;
}

void ElencoVista::focusOutEvent(QFocusEvent* evento) {
  delete suggerimenti_;
  QComboBox::focusOutEvent(evento);
  if (isEditable() && evento->reason() != Qt::PopupFocusReason) lineEdit()->setCursorPosition(0);
}

void ElencoVista::initStyleOption(QStyleOptionComboBox* opzioni) const {
  QComboBox::initStyleOption(opzioni);
  const auto area = style()->subControlRect(QStyle::CC_ComboBox, opzioni, QStyle::SC_ComboBoxEditField, this);
  opzioni->currentText = fontMetrics().elidedText(opzioni->currentText, Qt::ElideRight, area.width() - 2);
}

void ElencoVista::hideEvent(QHideEvent* evento) {
  delete suggerimenti_;
  QComboBox::hideEvent(evento);
}

}  // namespace vaticlo
