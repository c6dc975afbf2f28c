#include "desktop/prospetto_vista.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>

#include "controls/pittura.h"
#include "desktop/carta.h"
#include "desktop/salva_con_nome.h"
#include "desktop/suggerimento.h"
#include "desktop/voce_contestuale.h"

namespace vaticlo {

namespace {

constexpr int kAria = 8;               // of a row above and below its text, in all
constexpr int kLarghezzaMassima = 32;  // of a column, in letters, until the user widens it
constexpr int kColonneInPiedi = 6;     // a table with more lies across the page
constexpr int kRigheMisurate = 200;
constexpr int kTastiNumerati = 10;  // Ctrl+1 to Ctrl+9, then Ctrl+0

/// A field keeps its distance from its neighbours.
class CampoTabella : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QString displayText(const QVariant& valore, const QLocale& /*lingua*/) const override {
    return QChar::Nbsp + valore.toString() + QChar::Nbsp;
  }
};

}  // namespace

ProspettoVista::ProspettoVista(Prospetto& modello, const Confine& confine, QWidget* padre)
    : QTableView(padre),
      modello_(modello),
      confine_(confine),
      righe_(new ModelloProspetto(modello, confine, this)),
      ordini_(new QMenu(QStringLiteral("&Ordina per"), this)) {
  {
    const QScopedValueRollback disegnando(disegnando_, true);  // what is chosen already stays so
    setModel(righe_);
  }
  setItemDelegate(new CampoTabella(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(modello.quante() == Prospetto::Scelta::Una ? QAbstractItemView::SingleSelection
                                                              : QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  auto* testa = horizontalHeader();
  testa->setHighlightSections(false);
  testa->setStretchLastSection(true);
  testa->setSortIndicatorClearable(true);
  testa->setResizeContentsPrecision(kRigheMisurate);
  segnaOrdine();
  setSortingEnabled(true);
  connect(testa, &QHeaderView::sectionResized, this, [this](int colonna) {
    // The last one takes what the window leaves it.
    larghezzeScelte_ |= !disegnando_ && colonna + 1 < righe_->columnCount();
  });
  connect(this, &QTableView::doubleClicked, this, &ProspettoVista::apri);

  auto* copia = voceContestuale(*this, "copia", "&Copia", [this] { this->copia(); });
  copia->setShortcut(QKeySequence::Copy);
  copia->setShortcutContext(Qt::WidgetShortcut);
  addAction(ordini_->menuAction());
  voceContestuale(*this, "salvaCsv", "&Salva come CSV...", [this] { salvaCsv(); });
  voceContestuale(*this, "salvaPdf", "Salva come P&DF...", [this] { salvaComePdf(); });
  voceContestuale(*this, "stampa", "S&tampa...", [this] { stampa(); });
}

void ProspettoVista::aggiorna() {
  const QScopedValueRollback disegnando(disegnando_, true);
  if (modello_.edizione() != edizione_) {
    edizione_ = modello_.edizione();
    const int posto = currentIndex().row(), colonna = std::max(0, currentIndex().column());
    righe_->rifai();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kAria);
    segnaOrdine();
    aggiornaOrdini();
    misura();
    // The keys go on from where they were.
    if (posto >= 0 && righe_->rowCount() > 0)
      selectionModel()->setCurrentIndex(righe_->index(std::min(posto, righe_->rowCount() - 1),
                                                      std::min(colonna, righe_->columnCount() - 1)),
                                        QItemSelectionModel::NoUpdate);
  }
  mostraScelte();
  setAccessibleName(QString::fromStdString(modello_.Titolo()));
  setEnabled(modello_.Enabled());
  setVisible(modello_.Visible());
}

void ProspettoVista::segnaOrdine() {
  const auto& ordine = modello_.ordine();
  horizontalHeader()->setSortIndicator(ordine.colonna ? static_cast<int>(*ordine.colonna) : -1,
                                       ordine.crescente ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ProspettoVista::aggiornaOrdini() {
  const auto& colonne = modello_.tabella().colonne;
  const auto azioni = ordini_->actions();  // a copy at each call
  const bool uguali = std::ranges::equal(colonne, azioni, [](const Colonna& colonna, const QAction* azione) {
    return azione->text() == QString::fromStdString(colonna.nome);
  });
  if (uguali) return;
  qDeleteAll(azioni);
  for (int n = 0; n < static_cast<int>(colonne.size()); ++n) {
    auto* azione = ordini_->addAction(QString::fromStdString(colonne[static_cast<std::size_t>(n)].nome));
    if (n < kTastiNumerati)
      azione->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg((n + 1) % kTastiNumerati)));
    azione->setShortcutContext(Qt::WidgetShortcut);
    connect(azione, &QAction::triggered, this, [this, n] {
      const auto& ora = modello_.ordine();
      const bool dinuovo = ora.colonna == static_cast<std::size_t>(n) && ora.crescente;
      righe_->sort(n, dinuovo ? Qt::DescendingOrder : Qt::AscendingOrder);
    });
  }
}

// Columns grow with what they show and never shrink, so that they stay in place from table to table.
void ProspettoVista::misura() {
  if (larghezzeScelte_) return;
  const int massima = kLarghezzaMassima * fontMetrics().averageCharWidth();
  auto* testa = horizontalHeader();
  for (int n = 0; n + 1 < righe_->columnCount(); ++n) {
    const int serve = std::max(std::min(sizeHintForColumn(n), massima), testa->sectionSizeHint(n));
    const bool nuova = testa->sectionSize(n) == testa->defaultSectionSize();
    if (nuova || serve > testa->sectionSize(n)) testa->resizeSection(n, serve);
  }
}

void ProspettoVista::mostraScelte() {
  QItemSelection scelte;
  const auto& mostrate = modello_.mostrate();
  std::size_t posto = 0;
  std::vector<int> righe;
  for (const auto riga : modello_.scelte()) {  // both stand in the order shown
    while (mostrate[posto] != riga) ++posto;
    const int n = static_cast<int>(posto);
    scelte.select(righe_->index(n, 0), righe_->index(n, righe_->columnCount() - 1));
    righe.push_back(n);
  }
  std::vector<int> gia;
  for (const auto& indice : selectionModel()->selectedRows()) gia.push_back(indice.row());
  std::ranges::sort(gia);
  if (righe == gia) return;  // the user has chosen, and stays where he is
  selectionModel()->select(scelte, QItemSelectionModel::ClearAndSelect);
  if (righe.empty() || selectionModel()->isRowSelected(currentIndex().row(), {})) return;
  selectionModel()->setCurrentIndex(righe_->index(righe.front(), std::max(0, currentIndex().column())),
                                    QItemSelectionModel::NoUpdate);
  scrollTo(currentIndex());
}

void ProspettoVista::selectionChanged(const QItemSelection& scelte, const QItemSelection& lasciate) {
  QTableView::selectionChanged(scelte, lasciate);
  if (disegnando_) return;
  std::vector<Prospetto::Riga> righe;
  for (const auto& indice : selectionModel()->selectedRows()) righe.push_back(righe_->riga(indice));
  confine_.esegui([&] { modello_.scegli(righe); });
}

void ProspettoVista::apri(const QModelIndex& indice) {
  if (indice.isValid()) confine_.esegui([&] { modello_.apri(righe_->riga(indice)); });
}

void ProspettoVista::keyPressEvent(QKeyEvent* evento) {
  if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && currentIndex().isValid()) {
    apri(currentIndex());
    return;
  }
  const bool estremo = evento->key() == Qt::Key_Home || evento->key() == Qt::Key_End;
  if (estremo && evento->modifiers().testFlag(Qt::ControlModifier)) {
    // With Ctrl the toolkit would go there and choose nothing.
    QKeyEvent solo(evento->type(), evento->key(), evento->modifiers() & ~Qt::ControlModifier);
    QTableView::keyPressEvent(&solo);
    return;
  }
  QTableView::keyPressEvent(evento);
}

// A row is chosen whole: its ends are no places to go to.
QModelIndex ProspettoVista::moveCursor(CursorAction azione, Qt::KeyboardModifiers modificatori) {
  if ((azione != MoveHome && azione != MoveEnd) || righe_->rowCount() == 0)
    return QTableView::moveCursor(azione, modificatori);
  return righe_->index(azione == MoveHome ? 0 : righe_->rowCount() - 1, std::max(0, currentIndex().column()));
}

void ProspettoVista::contextMenuEvent(QContextMenuEvent* evento) {
  QMenu menu(this);
  for (auto* pulsante : pulsanti_)
    menu.addAction(pulsante->text(), pulsante, &QAbstractButton::click)->setEnabled(pulsante->isEnabled());
  menu.addSeparator();
  menu.addActions(actions());
  const bool daTastiera = evento->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
  menu.exec(daTastiera ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                       : evento->globalPos());
}

void ProspettoVista::paintEvent(QPaintEvent* evento) {
  QTableView::paintEvent(evento);
  if (!hasFocus()) return;
  QPainter pittore(viewport());
  disegnaFuoco(pittore, viewport()->rect(), palette().color(QPalette::Highlight));
}

bool ProspettoVista::viewportEvent(QEvent* evento) {
  if (evento->type() == QEvent::ToolTip) {
    const auto& dove = *static_cast<QHelpEvent*>(evento);
    const auto indice = indexAt(dove.pos());
    const bool intero = !indice.isValid() || sizeHintForIndex(indice).width() <= visualRect(indice).width();
    QToolTip::showText(dove.globalPos(), intero ? QString() : perSuggerimento(indice.data().toString()),
                       viewport(), visualRect(indice));
    return true;
  }
  return QTableView::viewportEvent(evento);
}

void ProspettoVista::changeEvent(QEvent* evento) {
  QTableView::changeEvent(evento);
  if (evento->type() == QEvent::FontChange)
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kAria);
}

void ProspettoVista::copia() {
  QApplication::clipboard()->setText(QString::fromStdString(testoDaIncollare(modello_.tabellaScelta())));
}

void ProspettoVista::salvaCsv() {
  salvaConNome(*this, QStringLiteral("Salva come CSV"), titolo(), QStringLiteral("csv"),
               [this](const QString& file) {
                 const auto testo = std::string(kBom) + testoCsv(modello_.tabellaMostrata());
                 return salvaOttetti(file, QByteArray::fromStdString(testo));
               });
}

void ProspettoVista::salvaComePdf() {
  salvaConNome(*this, QStringLiteral("Salva come PDF"), titolo(), QStringLiteral("pdf"),
               [this](const QString& file) {
                 return salvaPdf(file, [this](QPagedPaintDevice& carta) {
                   if (righe_->columnCount() > kColonneInPiedi)
                     carta.setPageOrientation(QPageLayout::Landscape);
                   stampaSu(carta, titolo(), modello_.tabellaMostrata());
                 });
               });
}

void ProspettoVista::stampa() {
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setDocName(titolo());
  if (righe_->columnCount() > kColonneInPiedi) stampante.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog scelta(&stampante, window());
  if (scelta.exec() != QDialog::Accepted) return;
  stampaSu(stampante, titolo(), modello_.tabellaMostrata());
  if (stampante.printerState() == QPrinter::Error)
    QMessageBox::warning(window(), scelta.windowTitle(),
                         QStringLiteral("La stampa non è cominciata: non è stato stampato nulla."));
}

QString ProspettoVista::titolo() const { return QString::fromStdString(modello_.Titolo()); }

}  // namespace vaticlo
