#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/riquadri.h"
#include "desktop/tavola_estrazione.h"
#include "desktop/viste.h"
#include "dialogs/frm_insprev.h"

namespace vaticlo {

namespace {

QWidget* selezione(Legame& legame, frmInsPrev& frm) {
  auto* widget = new QWidget(legame.vista());
  auto* riga = new QHBoxLayout(widget);
  riga->setContentsMargins(0, 0, 0, 0);
  auto* metodi = legame.elenco(frm.cmbMetodo, QStringLiteral("cmbMetodo"));
  metodi->setMinimumContentsLength(20);
  riga->addWidget(riquadroCon(legame, frm.Frame1, QStringLiteral("Frame1"), metodi));
  auto* previsioni = legame.elenco(frm.cmbPrevisione, QStringLiteral("cmbPrevisione"));
  previsioni->setMinimumContentsLength(32);
  riga->addWidget(riquadroCon(legame, frm.Frame10, QStringLiteral("Frame10"), previsioni));
  riga->addStretch(1);
  return widget;
}

QWidget* calcolo(Legame& legame, frmInsPrev& frm) {
  auto* gruppo = legame.riquadro(frm.Frame2, QStringLiteral("Frame2"));
  auto* colonna = new QVBoxLayout(gruppo);
  colonna->setContentsMargins(9, 5, 9, 6);
  auto* testa = new QHBoxLayout;
  testa->addLayout(
      intestazione(legame, frm.Label1, frm.estrazione.lblnestr, frm.Label13, frm.estrazione.lbldataestr), 1);
  auto* vai = legame.campo(frm.txtVai, QStringLiteral("txtVai"));
  vai->setFixedWidth(vai->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000__")));
  vai->setToolTip(QStringLiteral("Scrivete il numero o la data di un'estrazione e premete Invio"));
  auto* etichettaVai = new QLabel(QStringLiteral("Va&i a:"), gruppo);
  etichettaVai->setBuddy(vai);
  testa->addWidget(etichettaVai);
  testa->addWidget(vai);
  colonna->addLayout(testa);
  colonna->addWidget(tavolaConBarra(legame, frm.estrazione), 1);
  return gruppo;
}

constexpr int kIntornoAllaSigla = 8;

// A help for the mouse: the keyboard types the wheels, so Tab does not stop at them.
QLayout* ruote(Legame& legame, frmInsPrev& frm) {
  auto* riga = new QHBoxLayout;
  riga->setSpacing(2);
  for (std::size_t n = 0; n < frm.btnRuota.size(); ++n) {
    auto* pulsante = legame.pulsanteBreve(frm.btnRuota[n], QStringLiteral("btnRuota_%1").arg(n + 1));
    pulsante->setFocusPolicy(Qt::NoFocus);
    pulsante->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    pulsante->setMinimumWidth(pulsante->fontMetrics().horizontalAdvance(pulsante->text()) +
                              kIntornoAllaSigla);
    riga->addWidget(pulsante);
  }
  return riga;
}

QWidget* previsione(Legame& legame, frmInsPrev& frm) {
  auto* gruppo = legame.riquadro(frm.Frame3, QStringLiteral("Frame3"));
  auto* prima = new QHBoxLayout;
  prima->addWidget(riquadroCon(legame, frm.Frame11, QStringLiteral("Frame11"),
                               legame.campo(frm.txtNum, QStringLiteral("txtNum"))),
                   3);
  prima->addWidget(riquadroCon(legame, frm.Frame4, QStringLiteral("Frame4"),
                               legame.campo(frm.txtRuote, QStringLiteral("txtRuote"))),
                   3);
  prima->addWidget(
      riquadroCon(legame, frm.Frame5, QStringLiteral("Frame5"),
                  legame.elenco(frm.cmbColpi, QStringLiteral("cmbColpi"), ElencoVista::Tipo::Chiuso)),
      2);

  auto* combinazioni = legame.riquadro(frm.Frame6, QStringLiteral("Frame6"));
  auto* colonna = new QVBoxLayout(combinazioni);
  colonna->addWidget(riquadroCon(legame, frm.Frame7, QStringLiteral("Frame7"),
                                 legame.campo(frm.txtAmbate, QStringLiteral("txtAmbate"))));
  colonna->addWidget(riquadroCon(legame, frm.Frame8, QStringLiteral("Frame8"),
                                 legame.campo(frm.txtAmbi, QStringLiteral("txtAmbi"))));
  colonna->addWidget(riquadroCon(legame, frm.Frame9, QStringLiteral("Frame9"),
                                 legame.campo(frm.txtSup, QStringLiteral("txtSup"))));

  auto* lettura = legame.etichetta(frm.lblLettura, QStringLiteral("lblLettura"));
  lettura->setWordWrap(true);
  lettura->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lettura->setMinimumHeight(2 * lettura->fontMetrics().lineSpacing());
  lettura->setAccessibleName(QStringLiteral("Che cosa si gioca"));

  auto* tutto = new QVBoxLayout(gruppo);
  tutto->addLayout(prima);
  tutto->addLayout(ruote(legame, frm));
  tutto->addWidget(combinazioni);
  tutto->addWidget(lettura);
  tutto->addStretch(1);
  return gruppo;
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmInsPrev>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* sopra = selezione(*legame, *frm);
  auto* sinistra = calcolo(*legame, *frm);
  auto* destra = previsione(*legame, *frm);

  auto* pulsanti = new QHBoxLayout;
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnElabora, QStringLiteral("btnElabora")));
  pulsanti->addWidget(legame->pulsante(frm->btnElimina, QStringLiteral("btnElimina")));
  pulsanti->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));

  // The buttons stand below the shorter half: the window fits a low screen.
  auto* conPulsanti = new QVBoxLayout;
  conPulsanti->addWidget(destra, 1);
  conPulsanti->addLayout(pulsanti);
  auto* centro = new QHBoxLayout;
  centro->setSpacing(14);
  centro->addWidget(sinistra);
  centro->addLayout(conPulsanti, 1);

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(12, 6, 12, 8);
  tutto->setSpacing(6);
  tutto->addWidget(sopra);
  tutto->addLayout(centro, 1);
  // From field to field as one writes them; the way to another draw comes after the buttons.
  QWidget::setTabOrder(widget->findChild<QWidget*>(QStringLiteral("btnCancella")),
                       widget->findChild<QWidget*>(QStringLiteral("txtVai")));
  widget->setProperty(kPrimoFuoco, QStringLiteral("cmbMetodo"));
  return widget;
}

}  // namespace vaticlo
