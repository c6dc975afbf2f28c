#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/grafico_vista.h"
#include "desktop/prospetto_vista.h"
#include "desktop/riquadri.h"
#include "desktop/viste.h"
#include "dialogs/frm_ritardi.h"

namespace vaticlo {

QWidget* vista(const std::shared_ptr<frmRitardi>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* scelte = new QHBoxLayout;
  scelte->setSpacing(10);
  scelte->addWidget(
      riquadroCon(*legame, frm->Frame2, QStringLiteral("Frame2"),
                  legame->elenco(frm->cmbRuota, QStringLiteral("cmbRuota"), ElencoVista::Tipo::Chiuso)));
  scelte->addWidget(riquadroCon(*legame, frm->Frame3, QStringLiteral("Frame3"),
                                opzioniInRiga(*legame, frm->optSorte, QStringLiteral("optSorte"))));
  scelte->addWidget(intervalloEstrazioni(*legame, frm->estrazioni), 1);
  stessaAltezza(*scelte);

  auto* sopra = new QWidget(widget);
  auto* figura = new QVBoxLayout(sopra);
  figura->setContentsMargins(0, 0, 0, 0);
  figura->addWidget(opzioniInRiga(*legame, frm->optMisura, QStringLiteral("optMisura")));
  figura->addWidget(legame->grafico(frm->grafico, QStringLiteral("grafico")), 1);
  auto* divisione = new QSplitter(Qt::Vertical, widget);
  divisione->setChildrenCollapsible(false);
  divisione->addWidget(sopra);
  divisione->addWidget(legame->prospetto(frm->righe, QStringLiteral("righe")));
  divisione->setStretchFactor(0, 3);
  divisione->setStretchFactor(1, 2);

  auto* sotto = new QHBoxLayout;
  auto* memoria = legame->etichetta(frm->lblMemoria, QStringLiteral("lblMemoria"));
  memoria->setWordWrap(true);
  inGrassetto(*memoria);
  sotto->addWidget(memoria, 1);
  sotto->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(8);
  tutto->addLayout(scelte);
  auto* frase = legame->etichetta(frm->lblFrase, QStringLiteral("lblFrase"));
  frase->setWordWrap(true);
  tutto->addWidget(frase);
  tutto->addWidget(divisione, 1);
  tutto->addLayout(sotto);
  widget->setProperty(kPrimoFuoco, QStringLiteral("cmbRuota"));
  return widget;
}

}  // namespace vaticlo
