#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <initializer_list>

#include "controls/xpcmdbutton.h"
#include "desktop/legame.h"
#include "desktop/prospetto_vista.h"
#include "desktop/viste.h"
#include "dialogs/frm_quadro.h"

namespace vaticlo {

namespace {

QLayout* intervallo(Legame& legame, frmQuadro& frm) {
  auto* riga = new QHBoxLayout;
  riga->setSpacing(8);
  const auto estremo = [&](Etichetta& titolo, const QString& nomeTitolo, CampoTesto& campo,
                           const QString& nome, Etichetta& data, const QString& nomeData) {
    auto* etichetta = legame.etichetta(titolo, nomeTitolo);
    auto* widget = legame.campo(campo, nome);
    widget->setFixedWidth(widget->fontMetrics().horizontalAdvance(QStringLiteral("28/02/20260")) + 12);
    widget->setAccessibleName(etichetta->text().remove(u'&') + QStringLiteral(" (numero o data)"));
    etichetta->setBuddy(widget);
    riga->addWidget(etichetta);
    riga->addWidget(widget);
    riga->addWidget(legame.etichetta(data, nomeData));
  };
  estremo(frm.Label1, QStringLiteral("Label1"), frm.txtDal, QStringLiteral("txtDal"), frm.lblDal,
          QStringLiteral("lblDal"));
  estremo(frm.Label2, QStringLiteral("Label2"), frm.txtAl, QStringLiteral("txtAl"), frm.lblAl,
          QStringLiteral("lblAl"));
  riga->addSpacing(8);
  riga->addWidget(legame.pulsante(frm.btnArchivio, QStringLiteral("btnArchivio")));
  riga->addStretch(1);
  auto* filtro = legame.campo(frm.txtFiltro, QStringLiteral("txtFiltro"));
  filtro->setClearButtonEnabled(true);
  filtro->setAccessibleName(filtro->placeholderText());
  filtro->setMinimumWidth(filtro->fontMetrics().horizontalAdvance(filtro->placeholderText()) + 44);
  riga->addWidget(filtro);
  return riga;
}

QWidget* inColonna(std::initializer_list<QWidget*> widget, QWidget* elastico) {
  auto* parte = new QWidget;
  auto* colonna = new QVBoxLayout(parte);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(5);
  for (auto* uno : widget) colonna->addWidget(uno, uno == elastico ? 1 : 0);
  return parte;
}

template <class Fai>
void tasto(QWidget* dove, const QKeySequence& quale, Qt::ShortcutContext contesto, Fai fai) {
  auto* scorciatoia = new QShortcut(quale, dove);
  scorciatoia->setContext(contesto);
  QObject::connect(scorciatoia, &QShortcut::activated, dove, fai);
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmQuadro>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* testa = intervallo(*legame, *frm);

  auto* metodi = legame->prospetto(frm->metodi, QStringLiteral("metodi"));
  auto* riassunto = legame->etichetta(frm->lblMetodi, QStringLiteral("lblMetodi"));
  auto* titolo = legame->etichetta(frm->lblPrevisioni, QStringLiteral("lblPrevisioni"));
  auto grassetto = titolo->font();
  grassetto.setBold(true);
  titolo->setFont(grassetto);
  auto* previsioni = legame->prospetto(frm->previsioni, QStringLiteral("previsioni"));
  auto* nota = legame->etichetta(frm->lblNota, QStringLiteral("lblNota"));
  nota->setWordWrap(true);
  auto* intitolazione = new QWidget(widget);
  auto* riga = new QHBoxLayout(intitolazione);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->setSpacing(14);
  riga->addWidget(titolo);
  riga->addWidget(nota, 1);

  auto* divisione = new QSplitter(Qt::Vertical, widget);
  divisione->setChildrenCollapsible(false);
  divisione->addWidget(inColonna({metodi, riassunto}, metodi));
  divisione->addWidget(inColonna({intitolazione, previsioni}, previsioni));
  divisione->setStretchFactor(0, 3);
  divisione->setStretchFactor(1, 2);

  auto* pulsanti = new QHBoxLayout;
  pulsanti->setSpacing(8);
  QList<QAbstractButton*> sulle;
  const auto pulsante = [&](Pulsante& modello, const char* nome) {
    auto* fatto = legame->pulsante(modello, QString::fromLatin1(nome));
    pulsanti->addWidget(fatto);
    return fatto;
  };
  pulsante(frm->btnCaso, "btnCaso");
  sulle << pulsante(frm->btnVerifica, "btnVerifica");
  pulsanti->addSpacing(10);
  auto* togli = pulsante(frm->btnTogli, "btnTogli");
  sulle << togli << pulsante(frm->btnCopia, "btnCopia") << pulsante(frm->btnSposta, "btnSposta")
        << pulsante(frm->btnDuplica, "btnDuplica");
  pulsanti->addSpacing(10);
  auto* annulla = pulsante(frm->btnAnnulla, "btnAnnulla");
  pulsanti->addWidget(legame->avanzamento(frm->prgbar, QStringLiteral("prgbar")), 1);
  pulsanti->addStretch(1);
  auto* esci = pulsante(frm->btnEsci, "btnEsci");
  previsioni->offri(sulle);

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  tutto->addLayout(testa);
  tutto->addWidget(divisione, 1);
  auto* fatto = legame->etichetta(frm->lblFatto, QStringLiteral("lblFatto"));
  fatto->setWordWrap(true);
  tutto->addWidget(fatto);
  tutto->addLayout(pulsanti);

  auto* filtro = widget->findChild<QLineEdit*>(QStringLiteral("txtFiltro"));
  tasto(widget, QKeySequence::Undo, Qt::WidgetWithChildrenShortcut, [annulla] { annulla->click(); });
  tasto(widget, QKeySequence::Find, Qt::WidgetWithChildrenShortcut,
        [filtro] { filtro->setFocus(Qt::ShortcutFocusReason); });
  tasto(widget, Qt::Key_Escape, Qt::WidgetWithChildrenShortcut, [filtro, esci] {
    if (filtro->text().isEmpty()) {
      esci->click();
    } else {
      filtro->clear();
      Q_EMIT filtro->textEdited({});
    }
  });
  tasto(filtro, Qt::Key_Down, Qt::WidgetShortcut, [metodi] { metodi->setFocus(Qt::OtherFocusReason); });
  tasto(previsioni, QKeySequence::Delete, Qt::WidgetShortcut, [togli] { togli->click(); });
  // Another program may have changed the methods while the user was there.
  QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, legame,
                   [frm = frm.get(), &confine = legame->confine()](Qt::ApplicationState stato) {
                     if (stato == Qt::ApplicationActive) confine.esegui([&] { frm->Form_Activate(); });
                   });
  widget->setProperty(kPrimoFuoco, QStringLiteral("metodi"));
  return widget;
}

}  // namespace vaticlo
