#include <QFontMetrics>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSplitter>
#include <QVBoxLayout>
#include <utility>

#include "controls/xpcmdbutton.h"
#include "desktop/grafico_vista.h"
#include "desktop/prospetto_vista.h"
#include "desktop/riquadri.h"
#include "desktop/viste.h"
#include "dialogs/frm_caso.h"

namespace vaticlo {

namespace {

QWidget* prove(Legame& legame, frmCaso& frm) {
  auto* gruppo = legame.riquadro(frm.Frame3, QStringLiteral("Frame3"));
  gruppo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* riga = new QHBoxLayout(gruppo);
  const auto campo = [&](Etichetta& titolo, const QString& nomeTitolo, CampoTesto& testo,
                         const QString& nome) {
    auto* etichetta = legame.etichetta(titolo, nomeTitolo);
    auto* widget = legame.campo(testo, nome);
    etichetta->setBuddy(widget);
    widget->setFixedWidth(widget->fontMetrics().horizontalAdvance(QStringLiteral("0000000000")) + 8);
    widget->setAccessibleName(etichetta->text().remove(u'&'));
    riga->addWidget(etichetta);
    riga->addWidget(widget);
  };
  campo(frm.lblProve, QStringLiteral("lblProve"), frm.txtprove, QStringLiteral("txtprove"));
  campo(frm.lblSeme, QStringLiteral("lblSeme"), frm.txtseme, QStringLiteral("txtseme"));
  return gruppo;
}

QLayout* comandi(Legame& legame, frmCaso& frm) {
  auto* riga = new QHBoxLayout;
  riga->setSpacing(10);
  riga->addWidget(legame.pulsante(frm.btnElabora, QStringLiteral("btnElabora")));
  riga->addWidget(legame.pulsante(frm.btnStop, QStringLiteral("btnStop")));
  auto* barra = legame.avanzamento(frm.prgbar, QStringLiteral("prgbar"));
  barra->setFixedWidth(220);
  riga->addWidget(barra);
  riga->addWidget(legame.etichetta(frm.lblRimasto, QStringLiteral("lblRimasto")), 1);
  riga->addWidget(legame.pulsante(frm.btnCancella, QStringLiteral("btnCancella")));
  return riga;
}

QWidget* figure(Legame& legame, frmCaso& frm) {
  auto* sotto = new QWidget(legame.vista());
  auto* colonna = new QVBoxLayout(sotto);
  colonna->setContentsMargins(0, 4, 0, 0);
  for (auto [etichetta, nome] :
       {std::pair{&frm.lblFrase, "lblFrase"}, {&frm.lblAvvertenza, "lblAvvertenza"}}) {
    auto* widget = legame.etichetta(*etichetta, QLatin1String(nome));
    widget->setWordWrap(true);
    if (etichetta == &frm.lblFrase) inGrassetto(*widget);
    colonna->addWidget(widget);
  }
  colonna->addWidget(opzioniInRiga(legame, frm.optFigura, QStringLiteral("optFigura")));
  auto* accanto = new QSplitter(Qt::Horizontal, sotto);
  accanto->setChildrenCollapsible(false);
  accanto->addWidget(legame.grafico(frm.grafico, QStringLiteral("grafico")));
  accanto->addWidget(legame.prospetto(frm.cifre, QStringLiteral("cifre")));
  accanto->setStretchFactor(0, 1);
  accanto->setSizes({600, 360});
  colonna->addWidget(accanto, 1);
  return sotto;
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmCaso>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* scelte = new QHBoxLayout;
  scelte->setSpacing(10);
  scelte->addWidget(sceltaMetodo(*legame, frm->metodo), 1);
  scelte->addWidget(intervalloEstrazioni(*legame, frm->estrazioni));
  scelte->addWidget(prove(*legame, *frm));
  stessaAltezza(*scelte);

  auto* divisione = new QSplitter(Qt::Vertical, widget);
  divisione->setChildrenCollapsible(false);
  divisione->addWidget(legame->prospetto(frm->confronti, QStringLiteral("confronti")));
  divisione->addWidget(figure(*legame, *frm));
  divisione->setStretchFactor(1, 1);
  divisione->setSizes({130, 400});

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(8);
  tutto->addLayout(scelte);
  tutto->addLayout(comandi(*legame, *frm));
  tutto->addWidget(divisione, 1);
  widget->setProperty(kPrimoFuoco, QStringLiteral("btnElabora"));
  return widget;
}

}  // namespace vaticlo
