#include "desktop/grafico_vista.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPdfWriter>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/pittura.h"
#include "desktop/carta.h"
#include "desktop/salva_con_nome.h"
#include "desktop/suggerimento.h"
#include "desktop/voce_contestuale.h"

namespace vaticlo {

namespace {

constexpr int kBordo = 2;          // room for the mark of the focus
constexpr int kPuntiPollice = 96;  // at which the sizes of widgets count
constexpr double kScala = 2;       // pixels of a saved picture for one of the screen's at 96 dpi
constexpr std::size_t kPagina = 10;

QPalette carta() {
  QPalette colori;
  colori.setColor(QPalette::Base, Qt::white);
  colori.setColor(QPalette::Text, Qt::black);
  return colori;
}

}  // namespace

GraficoVista::GraficoVista(Grafico& modello, QWidget* padre)
    : QWidget(padre), modello_(modello), tela_(*this) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(kBordo, kBordo, kBordo, kBordo);
  tutto->addWidget(&tela_.widget());

  auto* copia = voceContestuale(*this, "copiaFigura", "&Copia la figura", [this] {
    perCarta(
        [&](const TelaGrafico& tela) { QApplication::clipboard()->setImage(tela.immagine(size(), kScala)); });
  });
  copia->setShortcut(QKeySequence::Copy);
  copia->setShortcutContext(Qt::WidgetShortcut);
  voceContestuale(*this, "salvaPng", "Salva come P&NG...", [this] {
    salvaConNome(*this, QStringLiteral("Salva come PNG"), accessibleName(), QStringLiteral("png"),
                 [this](const QString& file) { return salvaOttetti(file, png()); });
  });
  voceContestuale(*this, "salvaPdf", "Salva come P&DF...", [this] {
    salvaConNome(*this, QStringLiteral("Salva come PDF"), accessibleName(), QStringLiteral("pdf"),
                 [this](const QString& file) { return salvaOttetti(file, pdf()); });
  });
}

void GraficoVista::aggiorna() {
  letto_.reset();
  tela_.indica(std::nullopt);
  ridisegna();
  setAccessibleName(QString::fromStdString(modello_.disegno().titolo));
  setAccessibleDescription(QString::fromStdString(modello_.disegno().descrizione));
  setEnabled(!modello_.disegno().posti.empty());
  setVisible(modello_.Visible());
}

void GraficoVista::ridisegna() { tela_.disegna(modello_.disegno(), palette(), font()); }

template <class Fai>
void GraficoVista::perCarta(Fai fai) const {
  QWidget fuori;
  TelaGrafico tela(fuori);
  tela.widget().resize(size());  // as many labels as fit
  tela.disegna(modello_.disegno(), carta(), font());
  fai(tela);
}

QByteArray GraficoVista::png() const {
  QByteArray ottetti;
  QBuffer uscita(&ottetti);
  uscita.open(QIODevice::WriteOnly);
  perCarta([&](const TelaGrafico& tela) { tela.immagine(size(), kScala).save(&uscita, "PNG"); });
  return ottetti;
}

QByteArray GraficoVista::pdf() const {
  QByteArray ottetti;
  QBuffer uscita(&ottetti);
  uscita.open(QIODevice::WriteOnly);
  QPdfWriter foglio(&uscita);
  foglio.setTitle(accessibleName());
  foglio.setResolution(kPuntiPollice);
  foglio.setPageSize(QPageSize(QSizeF(size()) / kPuntiPollice, QPageSize::Inch));
  foglio.setPageMargins(QMarginsF());
  perCarta([&](const TelaGrafico& tela) { tela.stampaSu(foglio, size()); });
  return ottetti;
}

void GraficoVista::leggi(std::optional<std::size_t> posto) {
  const auto& letture = modello_.disegno().letture;
  if (posto && *posto >= letture.size()) posto.reset();
  if (posto == letto_) return;
  letto_ = posto;
  tela_.indica(posto);
  if (!posto) {
    QToolTip::hideText();
    setAccessibleDescription(QString::fromStdString(modello_.disegno().descrizione));
    return;
  }
  const auto lettura = QString::fromStdString(letture[*posto]);
  const auto punto = tela_.widget().mapTo(this, tela_.puntoDi(*posto));
  QToolTip::showText(mapToGlobal(punto), perSuggerimento(lettura), this);
  setAccessibleDescription(lettura);
}

bool GraficoVista::event(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip) return true;  // shown as soon as the pointer is there
  return QWidget::event(evento);
}

void GraficoVista::changeEvent(QEvent* evento) {
  QWidget::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange) ridisegna();
}

void GraficoVista::focusInEvent(QFocusEvent* evento) {
  QWidget::focusInEvent(evento);
  update();
}

void GraficoVista::focusOutEvent(QFocusEvent* evento) {
  QWidget::focusOutEvent(evento);
  if (evento->reason() != Qt::PopupFocusReason) leggi(std::nullopt);
  update();
}

void GraficoVista::keyPressEvent(QKeyEvent* tasto) {
  const auto quanti = modello_.disegno().letture.size();
  if (quanti == 0) return QWidget::keyPressEvent(tasto);
  const auto ultimo = quanti - 1;
  const auto verso = [&](std::size_t meno, std::size_t piu) {
    if (!letto_) return meno > 0 ? ultimo : std::size_t{0};
    return *letto_ < meno ? 0 : std::min(*letto_ - meno + piu, ultimo);
  };
  switch (tasto->key()) {
    case Qt::Key_Left:
      return leggi(verso(1, 0));
    case Qt::Key_Right:
      return leggi(verso(0, 1));
    case Qt::Key_PageUp:
      return leggi(verso(kPagina, 0));
    case Qt::Key_PageDown:
      return leggi(verso(0, kPagina));
    case Qt::Key_Home:
      return leggi(0);
    case Qt::Key_End:
      return leggi(ultimo);
    case Qt::Key_Escape:
      if (letto_) return leggi(std::nullopt);
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(tasto);
}

void GraficoVista::leaveEvent(QEvent* evento) {
  QWidget::leaveEvent(evento);
  leggi(std::nullopt);
}

void GraficoVista::mouseMoveEvent(QMouseEvent* evento) {
  QWidget::mouseMoveEvent(evento);
  leggi(tela_.postoSotto(tela_.widget().mapFrom(this, evento->pos())));
}

void GraficoVista::mousePressEvent(QMouseEvent* evento) {
  QWidget::mousePressEvent(evento);
  setFocus(Qt::MouseFocusReason);
}

void GraficoVista::paintEvent(QPaintEvent* evento) {
  QWidget::paintEvent(evento);
  QPainter pittore(this);
  if (hasFocus())
    disegnaFuoco(pittore, rect(), palette().color(QPalette::Highlight));
  else
    disegnaFuoco(pittore, rect(), palette().color(QPalette::Mid));
}

void GraficoVista::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  if (!modello_.disegno().nomi.empty()) ridisegna();
}

}  // namespace vaticlo
