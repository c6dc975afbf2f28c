#include "desktop/vista_guida.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/ricerca_testo.h"
#include "dialogs/frm_principale_tavole.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace {

constexpr int kLarghezzaTesto = 990;  // the widest picture, without a scroll bar below
constexpr int kLarghezzaCapitoli = 230, kAltezza = 720;
constexpr int kLivelloSezione = 3;  // of a heading within a chapter

// The name by which a heading is reached.
QString ancora(const QTextBlock& blocco) {
  for (auto pezzo = blocco.begin(); !pezzo.atEnd(); ++pezzo)
    if (const auto nomi = pezzo.fragment().charFormat().anchorNames(); !nomi.isEmpty()) return nomi.first();
  return {};
}

}  // namespace

VistaGuida::VistaGuida(const std::filesystem::path& pagina, QWidget* padre)
    : QWidget(padre, Qt::Window),
      testo_(new QTextBrowser),
      capitoli_(new QListWidget),
      ricerca_(new QLineEdit) {
  setObjectName(QStringLiteral("guida"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QString::fromUtf8(kCaptionGuida));
  testo_->setObjectName(QStringLiteral("guidaTesto"));
  testo_->setFrameShape(QFrame::NoFrame);
  testo_->setOpenExternalLinks(true);
  testo_->setSource(QUrl::fromLocalFile(QString::fromStdString(testoDi(pagina))));
  capitoli_->setObjectName(QStringLiteral("guidaCapitoli"));
  capitoli_->setAccessibleName(QStringLiteral("Capitoli"));
  capitoli_->setFrameShape(QFrame::NoFrame);
  capitoli_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  elencaCapitoli();
  // A chapter is reached as a link is, so that the way back knows where one came from.
  const auto vai = [this](const QListWidgetItem* voce) {
    if (voce != nullptr) testo_->setSource(QUrl(u'#' + voce->data(Qt::UserRole).toString()));
  };
  connect(capitoli_, &QListWidget::currentItemChanged, this, vai);
  for (const auto segnale : {&QListWidget::itemClicked, &QListWidget::itemActivated})
    connect(capitoli_, segnale, this, vai);  // again, from elsewhere in the text

  auto* indietro = new QToolButton;
  indietro->setObjectName(QStringLiteral("guidaIndietro"));
  indietro->setText(QStringLiteral("&Indietro"));
  indietro->setToolTip(QStringLiteral("Torna dove si era (Alt+Sinistra)"));
  indietro->setEnabled(false);
  connect(indietro, &QToolButton::clicked, testo_, &QTextBrowser::backward);
  connect(testo_, &QTextBrowser::backwardAvailable, indietro, &QWidget::setEnabled);

  ricerca_->setObjectName(QStringLiteral("guidaRicerca"));
  ricerca_->setPlaceholderText(
      QStringLiteral("Cerca nella guida: Invio il prossimo, Maiusc+Invio il precedente"));
  ricerca_->setClearButtonEnabled(true);
  connect(ricerca_, &QLineEdit::textEdited, this, [this] { cerca(false, true); });
  auto* trova = new QShortcut(QKeySequence::Find, this);
  connect(trova, &QShortcut::activated, this, [this] {
    ricerca_->setFocus(Qt::ShortcutFocusReason);
    ricerca_->selectAll();
  });

  auto* sopra = new QHBoxLayout;
  sopra->setContentsMargins(6, 6, 6, 2);
  sopra->addWidget(indietro);
  sopra->addWidget(ricerca_, 1);
  auto* meta = new QSplitter;
  meta->addWidget(capitoli_);
  meta->addWidget(testo_);
  meta->setStretchFactor(1, 1);
  meta->setSizes({kLarghezzaCapitoli, kLarghezzaTesto});
  auto* tutto = new QVBoxLayout(this);
  tutto->setContentsMargins(0, 0, 0, 0);
  tutto->setSpacing(0);
  tutto->addLayout(sopra);
  tutto->addWidget(meta, 1);
  resize(QSize(kLarghezzaCapitoli + kLarghezzaTesto, kAltezza).boundedTo(screen()->availableSize() * 9 / 10));
  testo_->setFocus();
}

void VistaGuida::elencaCapitoli() {
  for (auto blocco = testo_->document()->begin(); blocco.isValid(); blocco = blocco.next()) {
    const int livello = blocco.blockFormat().headingLevel();
    const auto nome = ancora(blocco);
    if (livello < 2 || livello > kLivelloSezione || nome.isEmpty()) continue;
    auto* voce =
        new QListWidgetItem(QString(livello == kLivelloSezione ? 4 : 0, u' ') + blocco.text(), capitoli_);
    voce->setData(Qt::UserRole, nome);
    voce->setToolTip(blocco.text());
  }
}

void VistaGuida::cerca(bool indietro, bool dalla) {
  cercaNelTesto(*testo_, *ricerca_, indietro ? QTextDocument::FindBackward : QTextDocument::FindFlags(),
                dalla);
}

void VistaGuida::keyPressEvent(QKeyEvent* tasto) {
  if (tasto->key() == Qt::Key_Escape)
    close();
  else if (ricerca_->hasFocus() && (tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter))
    cerca(tasto->modifiers().testFlag(Qt::ShiftModifier), false);
  else if (tasto->modifiers() == Qt::AltModifier && tasto->key() == Qt::Key_Left)
    testo_->backward();
  else
    QWidget::keyPressEvent(tasto);
}

}  // namespace vaticlo
