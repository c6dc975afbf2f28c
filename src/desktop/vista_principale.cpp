#include "desktop/vista_principale.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <array>

#include "desktop/barra_di_stato.h"
#include "desktop/immagini.h"
#include "desktop/osservatore.h"
#include "desktop/tasti_accesso.h"
#include "desktop/vista_guida.h"
#include "desktop/vista_inizio.h"
#include "desktop/viste.h"
#include "dialogs/avvisi.h"
#include "dialogs/frm_principale_tavole.h"
#include "dialogs/pagina_iniziale.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kLatoImmagini = 32;
constexpr int kResto = 2;  // where the scaling is no whole number, a size comes back smaller than asked for
constexpr int kTraSguardi = 2'000;   // milliseconds
constexpr int kBordoInferiore = 10;  // of the window manager's frame, whose size is not known before

int pixel(int twips) { return twips / kTwipsPerPixel; }

// A menu takes the pointer from its button, which gets no event for that.
void riposaDopoIlMenu(QToolButton* bottone) {
  QObject::connect(bottone->menu(), &QMenu::aboutToHide, bottone, [bottone] {
    QTimer::singleShot(0, bottone, [bottone] {
      if (bottone->rect().contains(bottone->mapFromGlobal(QCursor::pos()))) return;
      bottone->setAttribute(Qt::WA_UnderMouse, false);
      QEvent uscita(QEvent::Leave);
      QApplication::sendEvent(bottone, &uscita);
      bottone->update();
    });
  });
}

/// A child window that knows its dialog. A press on its frame or background leaves the focus where it is in
/// it; the toolkit would take it away and give it back.
class Figlia : public QMdiSubWindow {
 public:
  explicit Figlia(std::shared_ptr<Finestra> finestra) : finestra_(std::move(finestra)) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*prima*/, QWidget* ora) {
      if (ora != nullptr && ora != this) setFocusProxy(isAncestorOf(ora) ? ora : nullptr);
    });
  }
  [[nodiscard]] const std::shared_ptr<Finestra>& finestra() const { return finestra_; }

 protected:
  void keyPressEvent(QKeyEvent* tasto) override {
    QMdiSubWindow::keyPressEvent(tasto);
    const bool fermo = QApplication::mouseButtons() == Qt::NoButton;  // Esc ends a dragging too
    if (tasto->key() != Qt::Key_Escape || !fermo) return;
    if (QToolTip::isVisible())
      QToolTip::hideText();
    else
      close();
  }
  // A window that is hidden, to be shown in another size or to close, does not hand its focus round.
  bool focusNextPrevChild(bool next) override {
    return isVisible() && QMdiSubWindow::focusNextPrevChild(next);
  }
  // The toolkit notices the second move over a box of the title: a pointer that has jumped there from the
  // title, as behind a drag, would press nothing.
  void mousePressEvent(QMouseEvent* evento) override {
    QMouseEvent sopra(QEvent::MouseMove, evento->position(), evento->globalPosition(), Qt::NoButton,
                      Qt::NoButton, evento->modifiers());
    QMdiSubWindow::mouseMoveEvent(&sopra);
    QMdiSubWindow::mousePressEvent(evento);
  }

 private:
  std::shared_ptr<Finestra> finestra_;
};

/// A button of the toolbar whose drop-down part opens by the keyboard too.
class BottoneBarra : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void keyPressEvent(QKeyEvent* tasto) override {
    const bool apre =
        tasto->key() == Qt::Key_F4 || tasto->key() == Qt::Key_Menu || tasto->key() == Qt::Key_Down;
    if (apre && menu() != nullptr)
      showMenu();
    else
      QToolButton::keyPressEvent(tasto);
  }
};

}  // namespace

VistaPrincipaleQt::VistaPrincipaleQt(frmPrincipale& principale, const Confine& confine)
    : principale_(principale),
      confine_(confine),
      area_(new QMdiArea(this)),
      inizio_(new VistaInizio(area_->viewport(), principale, confine)),
      stato_(
          new BarraDiStato(QString::fromStdString(testoDi(principale.programma().cartella.radice())), this)),
      presenza_(principale.programma().cartella.radice()) {
  setObjectName(QStringLiteral("frmPrincipale"));
  setWindowTitle(QLatin1String(frmPrincipale::kCaption));
  setWindowIcon(immagine(QStringLiteral("vaticlo")));
  const QSize cornice(2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth),
                      style()->pixelMetric(QStyle::PM_TitleBarHeight) + kBordoInferiore);
  resize(QSize(pixel(frmPrincipale::kLarghezza), pixel(frmPrincipale::kAltezza))
             .boundedTo(screen()->availableSize() - cornice));
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  setCentralWidget(area_);
  setStatusBar(stato_);
  new OsservatoreCartella(
      principale.programma().cartella,
      [this] {
        if (principale_.occupata()) return false;
        aggiornaInizio();
        return true;
      },
      this);
  creaMenu();
  creaBarra();
  creaScorciatoie();
  connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* attivata) {
    if (mostrando_) return;  // the logic says itself what it has opened or brought up
    if (const auto finestra = finestraDi(attivata))
      confine_.nella(finestra->Caption()).esegui([&] { principale_.attivata(*finestra); });
  });
  connect(area_, &QMdiArea::subWindowActivated, this,
          [this] { inizio_->tastiAccesso(area_->subWindowList().isEmpty()); });
  new TastiAccesso(area_);
  principale_.disegnataDa(this);
  QTimer::singleShot(0, this, [this] { aggiornaInizio(); });  // the window is there at once
  aggiornaAvvisi();
  // Nothing tells of another program that comes or goes.
  auto* ogniTanto = new QTimer(this);
  connect(ogniTanto, &QTimer::timeout, this, [this] { aggiornaAvvisi(); });
  ogniTanto->start(kTraSguardi);
  area_->setFocus();  // not the first button of the toolbar, which a second key on the splash would press
}

VistaPrincipaleQt::~VistaPrincipaleQt() {
  area_->disconnect(this);  // its signals would still come when this part of the object is gone
  principale_.disegnataDa(nullptr);
}

void VistaPrincipaleQt::aggiornaAvvisi() { stato_->avvisi(avvisi(principale_, presenza_)); }

// An entry of a menu that says nothing would wipe out what the status bar says.
bool VistaPrincipaleQt::event(QEvent* evento) {
  return evento->type() == QEvent::StatusTip || QMainWindow::event(evento);
}

void VistaPrincipaleQt::aggiornaInizio() {
  const auto pagina = paginaIniziale(principale_.programma());
  inizio_->mostra(pagina);
  stato_->archivio(QString::fromStdString(pagina.inBreve));
}

// What people's hands know. They press the button of the active child window, where it has one that can be
// pressed.
void VistaPrincipaleQt::creaScorciatoie() {
  const auto tasto = [this](const QKeySequence& tasti, auto fai) {
    connect(new QShortcut(tasti, this), &QShortcut::activated, this, fai);
  };
  const auto premi = [this](const QString& nome, const QString& caption) {
    auto* attiva = area_->activeSubWindow();
    if (attiva == nullptr) return;
    for (auto* pulsante : attiva->findChildren<QAbstractButton*>(nome))
      if (pulsante->isVisible() && pulsante->isEnabled() && pulsante->text().contains(caption))
        pulsante->click();
  };
  addAction(findChild<QAction*>(QStringLiteral("mnu1Esci")));  // its key works while the menu is off, too
  tasto(QKeySequence::Print, [premi] { premi(QStringLiteral("btnStampa"), {}); });
  tasto(QKeySequence(Qt::Key_F5), [this, premi] {
    aggiornaInizio();
    premi(QStringLiteral("btnElabora"), QStringLiteral("Elabora"));  // the editor's saves
  });
}

void VistaPrincipaleQt::creaMenu() {
  std::array<QMenu*, 4> aperti{};  // the submenu under construction at each level
  for (const auto& voce : tavolaMenu()) {
    const auto livello = static_cast<std::size_t>(voce.livello);
    const auto caption = QString::fromUtf8(voce.caption), nome = QString::fromUtf8(voce.nome);
    if (caption.isEmpty()) {
      aperti.at(livello - 1)->addSeparator();
      continue;
    }
    if (voce.azione == nullptr) {
      aperti.at(livello) =
          livello == 1 ? menuBar()->addMenu(caption) : aperti.at(livello - 1)->addMenu(caption);
      aperti.at(livello)->menuAction()->setObjectName(nome);
      continue;
    }
    auto* azione = livello == 1 ? menuBar()->addAction(caption) : aperti.at(livello - 1)->addAction(caption);
    azione->setObjectName(nome);
    if (!voce.tasto.empty()) azione->setShortcut(QKeySequence(QString::fromUtf8(voce.tasto)));
    connect(azione, &QAction::triggered, this,
            [this, nome = voce.nome] { confine_.esegui([&] { principale_.comando(nome); }); });
  }
}

void VistaPrincipaleQt::creaBarra() {
  auto* barra = addToolBar(QStringLiteral("Barra degli strumenti"));
  barra->setObjectName(QStringLiteral("Toolbar1"));
  barra->setMovable(false);
  barra->setIconSize(QSize(kLatoImmagini, kLatoImmagini));
  for (const auto& pulsante : tavolaBarra()) {
    const auto toolTip = QString::fromUtf8(pulsante.toolTip);
    auto* bottone = new BottoneBarra(barra);
    bottone->setObjectName(QString::fromUtf8(pulsante.chiave));
    bottone->setIcon(immagine(QString::fromUtf8(pulsante.immagine)));
    bottone->setToolTip(toolTip);
    bottone->setAccessibleName(toolTip);
    bottone->setFocusPolicy(Qt::TabFocus);
    bottone->setAutoRaise(true);
    connect(bottone, &QToolButton::clicked, this, [this, chiave = pulsante.chiave] {
      confine_.esegui([&] { principale_.Toolbar1_ButtonClick(chiave); });
    });
    if (!pulsante.calcolaPrevisione.empty()) {
      auto* menu = new QMenu(bottone);
      const auto voce = [&](std::string_view chiave, std::string_view caption) {
        auto* azione = menu->addAction(QString::fromUtf8(caption));
        azione->setObjectName(QString::fromUtf8(chiave));
        connect(azione, &QAction::triggered, this,
                [this, chiave] { confine_.esegui([&] { principale_.Toolbar1_ButtonMenuClick(chiave); }); });
      };
      voce(pulsante.calcolaPrevisione, kCaptionCalcolaPrevisione);
      voce(pulsante.statistica, kCaptionStatistica);
      bottone->setMenu(menu);
      bottone->setPopupMode(QToolButton::MenuButtonPopup);
      riposaDopoIlMenu(bottone);
    }
    barra->addWidget(bottone);
  }
}

void VistaPrincipaleQt::mostra(const std::shared_ptr<Finestra>& finestra) {
  auto* figlia = new Figlia(finestra);
  figlia->setAttribute(Qt::WA_DeleteOnClose, false);
  auto* contenuto = disegna(finestra, confine_);
  figlia->setWidget(contenuto);
  figlia->setWindowTitle(QString::fromStdString(finestra->Caption()));
  figlia->setWindowIcon(windowIcon());
  figlia->installEventFilter(this);
  area_->addSubWindow(figlia);

  const auto& misure = finestra->misure();
  const QSize disegno(pixel(misure.larghezza), pixel(misure.altezza));
  figlia->setGeometry(QRect({pixel(misure.sinistra), pixel(misure.sopra)},
                            disegno.boundedTo(massima()).expandedTo(figlia->minimumSizeHint())));
  faiPosto(*figlia);
  const QScopedValueRollback mostrando(mostrando_, true);
  figlia->show();
  auto* primo = contenuto->findChild<QWidget*>(contenuto->property(kPrimoFuoco).toString());
  (primo != nullptr ? primo : contenuto)->setFocus(Qt::OtherFocusReason);
  aggiornaAvvisi();
}

// The largest area for child windows that the screen has room for.
QSize VistaPrincipaleQt::massima() const {
  const auto bordo = frameGeometry().size() - size();
  const auto intorno = size() - area_->size();
  const auto schermo = screen()->availableSize() - bordo - intorno;
  return isMaximized() ? area_->size() : schermo.expandedTo(area_->size());
}

// A child stands at its place; where it would reach over the edge it moves towards the top left corner. One
// that is larger than the area makes the main window grow, as far as the screen allows; then scroll bars
// appear.
void VistaPrincipaleQt::faiPosto(QMdiSubWindow& figlia) {
  const auto posto = figlia.pos();
  auto voluta = area_->size();
  if (figlia.width() > voluta.width()) voluta.setWidth(posto.x() + figlia.width() + kResto);
  if (figlia.height() > voluta.height()) voluta.setHeight(posto.y() + figlia.height() + kResto);
  voluta = voluta.boundedTo(massima());
  figlia.move(std::max(0, std::min(posto.x(), voluta.width() - figlia.width())),
              std::max(0, std::min(posto.y(), voluta.height() - figlia.height())));
  if (voluta == area_->size() || isMaximized()) return;
  resize(size() + voluta - area_->size());
  const auto libero = screen()->availableGeometry();
  const auto bordo = frameGeometry().size() - size();
  const QPoint estremo(libero.right() + 1 - width() - bordo.width(),
                       libero.bottom() + 1 - height() - bordo.height());
  const QPoint qui(std::max(libero.left(), std::min(pos().x(), estremo.x())),
                   std::max(libero.top(), std::min(pos().y(), estremo.y())));
  if (isVisible() && qui != pos()) move(qui);
}

void VistaPrincipaleQt::portaSu(Finestra& finestra) {
  auto* sotto = figlia(finestra);
  if (sotto == nullptr) return;
  const QScopedValueRollback mostrando(mostrando_, true);
  if (sotto->isMinimized()) sotto->showNormal();
  area_->setActiveSubWindow(sotto);
  aggiornaAvvisi();
}

void VistaPrincipaleQt::togli(Finestra& finestra) {
  auto* sotto = figlia(finestra);
  if (sotto == nullptr) return;
  sotto->removeEventFilter(this);
  sotto->hide();
  area_->removeSubWindow(sotto);
  sotto->deleteLater();
  aggiornaAvvisi();
}

void VistaPrincipaleQt::abilitaComandi(bool abilitati) {
  menuBar()->setEnabled(abilitati);
  findChild<QToolBar*>()->setEnabled(abilitati);
  inizio_->setEnabled(abilitati);
  for (auto* sotto : area_->subWindowList()) sotto->setEnabled(abilitati || finestraDi(sotto)->occupata());
  // Long work may disable what has the focus, which wanders on then: it comes back after the work.
  if (!abilitati)
    fuoco_ = focusWidget();
  else if (fuoco_ && area_->activeSubWindow() != nullptr && area_->activeSubWindow()->isAncestorOf(fuoco_))
    fuoco_->setFocus(Qt::OtherFocusReason);
}

void VistaPrincipaleQt::mostraGuida(const std::filesystem::path& pagina) {
  if (!guida_) guida_ = new VistaGuida(pagina, this);
  guida_->setWindowState(guida_->windowState() & ~Qt::WindowMinimized);
  guida_->show();
  guida_->raise();
  guida_->activateWindow();
}

bool VistaPrincipaleQt::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Close) {
    if (const auto finestra = finestraDi(oggetto)) {
      evento->ignore();
      confine_.esegui([&] { principale_.chiudi(*finestra); });
      return true;
    }
  }
  return QMainWindow::eventFilter(oggetto, evento);
}

void VistaPrincipaleQt::closeEvent(QCloseEvent* evento) {
  if (!principale_.Form_QueryUnload()) {
    evento->ignore();
    QTimer::singleShot(0, this, &QWidget::close);
    return;
  }
  confine_.esegui([this] { principale_.Form_Unload(); });
  QMainWindow::closeEvent(evento);
}

QMdiSubWindow* VistaPrincipaleQt::figlia(const Finestra& finestra) const {
  for (auto* sotto : area_->subWindowList())
    if (finestraDi(sotto).get() == &finestra) return sotto;
  return nullptr;
}

std::shared_ptr<Finestra> VistaPrincipaleQt::finestraDi(const QObject* figlia) const {
  const auto* nota = dynamic_cast<const Figlia*>(figlia);
  return nota == nullptr ? nullptr : nota->finestra();
}

}  // namespace vaticlo
