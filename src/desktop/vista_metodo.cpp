#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "controls/xpgroupbox.h"
#include "desktop/riquadri.h"
#include "desktop/tavola_estrazione.h"
#include "desktop/viste.h"
#include "dialogs/frm_metodo.h"

namespace vaticlo {

namespace {

QWidget* contatori(Legame& legame, frmMetodo& frm) {
  auto* riquadro = legame.riquadroDisegnato(frm.xpgroupbox1, QStringLiteral("xpgroupbox1"));
  auto* righe = new QHBoxLayout(riquadro);
  righe->setSpacing(8);
  const auto contatore = [&](Etichetta& titolo, CampoTesto& campo, int indice, const QString& nome) {
    auto* etichetta = legame.etichetta(titolo, QStringLiteral("Label2_%1").arg(indice));
    auto* valore = legame.campo(campo, nome);
    valore->setAlignment(Qt::AlignCenter);
    valore->setFixedWidth(valore->fontMetrics().horizontalAdvance(QStringLiteral("0000000")) + 8);
    valore->setAccessibleName(etichetta->text());
    righe->addWidget(etichetta);
    righe->addWidget(valore);
  };
  contatore(frm.titoloGiocabili, frm.txtgiocabili, 1, QStringLiteral("txtgiocabili"));
  contatore(frm.titoloVincenti, frm.txtvincenti, 2, QStringLiteral("txtvincenti"));
  contatore(frm.titoloInGioco, frm.txtingioco, 3, QStringLiteral("txtingioco"));
  righe->addStretch(1);
  return riquadro;
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmMetodo>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* scelta = sceltaMetodo(*legame, frm->metodo);
  auto* testa =
      intestazione(*legame, frm->Label1, frm->estrazione.lblnestr, frm->Label13, frm->estrazione.lbldataestr);
  auto* tavola = tavolaConBarra(*legame, frm->estrazione);
  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(10);
  sinistra->addWidget(scelta);
  sinistra->addLayout(testa);
  sinistra->addWidget(tavola, 1);
  auto* salti = new QHBoxLayout;
  salti->addWidget(legame->pulsante(frm->btnPrecedente, QStringLiteral("btnPrecedente")));
  salti->addStretch(1);
  salti->addWidget(legame->pulsante(frm->btnSeguente, QStringLiteral("btnSeguente")));
  sinistra->addLayout(salti);

  auto* area = legame->area(frm->RichTextBox1, QStringLiteral("RichTextBox1"));
  area->setAccessibleName(QStringLiteral("Esiti delle previsioni"));
  area->setMinimumWidth(area->fontMetrics().averageCharWidth() * 46);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(legame->pulsante(frm->btnTrova, QStringLiteral("btnTrova")));
  pulsanti->addWidget(legame->pulsante(frm->btnStampa, QStringLiteral("btnStampa")));
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnAnnulla, QStringLiteral("btnAnnulla")));
  auto* destra = new QVBoxLayout;
  destra->setSpacing(10);
  destra->addWidget(contatori(*legame, *frm));
  auto* nota = legame->etichetta(frm->lblNota, QStringLiteral("lblNota"));
  nota->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // no text of it widens the window
  destra->addWidget(nota);
  destra->addWidget(area, 1);
  destra->addLayout(pulsanti);

  auto* tutto = new QHBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(18);
  tutto->addLayout(sinistra);
  tutto->addLayout(destra, 1);
  widget->setProperty(kPrimoFuoco, QStringLiteral("VScroll1"));
  return widget;
}

}  // namespace vaticlo
