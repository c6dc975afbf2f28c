#include "desktop/selettore_data.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QScreen>
#include <QWheelEvent>

#include "desktop/immagini.h"

namespace vaticlo {

namespace {

QDate giornoQt(const Data& data) { return {anno(data), mese(data), giorno(data)}; }

Data daGiornoQt(const QDate& giorno) {
  return Data{std::chrono::year{giorno.year()}, std::chrono::month{static_cast<unsigned>(giorno.month())},
              std::chrono::day{static_cast<unsigned>(giorno.day())}};
}

QString scritta(const SelettoreData& modello) {
  return modello.Value() ? giornoQt(*modello.Value()).toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

}  // namespace

SelettoreDataVista::SelettoreDataVista(SelettoreData& modello, const Confine& confine, QWidget* padre)
    : QLineEdit(padre), modello_(modello), confine_(confine) {
  setFocusPolicy(Qt::WheelFocus);
  auto* calendario = addAction(immagine(QStringLiteral("Calendario")), TrailingPosition);
  calendario->setToolTip(QStringLiteral("Apri il calendario"));
  connect(calendario, &QAction::triggered, this, &SelettoreDataVista::apriCalendario);
  setToolTip(QStringLiteral("Scrivete la data, per esempio 28/02/2026, o premete F4 per il calendario"));
  setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + sizeHint().height() + 20);
}

void SelettoreDataVista::aggiorna() {
  setText(scritta(modello_));
  setEnabled(modello_.Enabled());
}

bool SelettoreDataVista::trattiene() {
  if (!isModified()) return false;
  bool rifiutata = false;
  confine_.esegui([&] { rifiutata = modello_.Validate && modello_.Validate(text().toStdString()); });
  setText(scritta(modello_));
  if (rifiutata) selectAll();
  return rifiutata;
}

void SelettoreDataVista::scegli(const QDate& giorno) {
  auto scelto = daGiornoQt(giorno);
  if (modello_.MaxDate()) scelto = std::min(scelto, *modello_.MaxDate());
  setText(scritta(modello_));  // a text that was typed is given up
  confine_.esegui([&] { modello_.scegli(scelto); });
}

void SelettoreDataVista::sposta(int passi) {
  const bool intera = selectedText() == text();
  const auto prima = text().left(hasSelectedText() ? selectionStart() : cursorPosition());
  if (trattiene() || !modello_.Value()) return;
  const auto parte = intera ? 0 : prima.count(QLatin1Char('/'));
  const auto giorno = giornoQt(*modello_.Value());
  scegli(parte == 0 ? giorno.addDays(passi) : parte == 1 ? giorno.addMonths(passi) : giorno.addYears(passi));
  intera ? selectAll() : setSelection(static_cast<int>(3 * parte), parte == 2 ? 4 : 2);
}

void SelettoreDataVista::apriCalendario() {
  if (trattiene()) return;
  auto* calendario = new QCalendarWidget(this);
  calendario->setObjectName(QStringLiteral("calendario"));
  calendario->setWindowFlag(Qt::Popup);
  calendario->setAttribute(Qt::WA_DeleteOnClose);
  calendario->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  if (modello_.MaxDate()) calendario->setMaximumDate(giornoQt(*modello_.MaxDate()));
  if (modello_.Value()) calendario->setSelectedDate(giornoQt(*modello_.Value()));
  const auto preso = [this, calendario](const QDate& giorno) {
    calendario->close();
    scegli(giorno);
    selectAll();
  };
  connect(calendario, &QCalendarWidget::clicked, this, preso);
  connect(calendario, &QCalendarWidget::activated, this, preso);
  const auto schermo = screen()->availableGeometry();
  const auto misura = calendario->sizeHint();
  auto angolo = mapToGlobal(rect().bottomLeft());
  if (angolo.y() + misura.height() > schermo.bottom()) angolo = mapToGlobal(QPoint(0, -misura.height()));
  angolo.setX(std::max(schermo.left(), std::min(angolo.x(), schermo.right() - misura.width())));
  calendario->move(angolo);
  calendario->show();
  calendario->setFocus();
}

void SelettoreDataVista::focusInEvent(QFocusEvent* evento) {
  QLineEdit::focusInEvent(evento);
  const auto motivo = evento->reason();
  if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason) selectAll();
}

void SelettoreDataVista::keyPressEvent(QKeyEvent* evento) {
  const bool alt = evento->modifiers().testFlag(Qt::AltModifier);
  switch (evento->key()) {
    case Qt::Key_Up:
      return sposta(1);
    case Qt::Key_Down:
      return alt ? apriCalendario() : sposta(-1);
    case Qt::Key_F4:
      return apriCalendario();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!trattiene()) selectAll();
      return;
    default:
      QLineEdit::keyPressEvent(evento);
  }
}

void SelettoreDataVista::mouseReleaseEvent(QMouseEvent* evento) {
  QLineEdit::mouseReleaseEvent(evento);
  // A click on a date selects it whole: what is typed then takes its place.
  if (!isModified() && !hasSelectedText()) selectAll();
}

void SelettoreDataVista::mouseDoubleClickEvent(QMouseEvent* /*evento*/) { selectAll(); }

void SelettoreDataVista::wheelEvent(QWheelEvent* evento) {
  const int giro = evento->angleDelta().y();
  if (giro * giro_ < 0) giro_ = 0;  // it turns back
  giro_ += giro;                    // a touchpad gives a step in many parts
  const int passi = giro_ / QWheelEvent::DefaultDeltasPerStep;
  giro_ %= QWheelEvent::DefaultDeltasPerStep;
  if (passi != 0) sposta(passi);
  evento->accept();
}

}  // namespace vaticlo
