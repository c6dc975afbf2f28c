#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/riquadri.h"
#include "desktop/selettore_data.h"
#include "desktop/viste.h"
#include "dialogs/frm_statistica.h"

namespace vaticlo {

namespace {

QWidget* intervallo(Legame& legame, frmStatistica& frm) {
  auto* gruppo = legame.riquadro(frm.Frame1, QStringLiteral("Frame1"));
  auto* griglia = new QGridLayout(gruppo);
  griglia->setHorizontalSpacing(10);
  const auto riga = [&](int n, Etichetta& titolo, const QString& nome, SelettoreData& data,
                        const QString& nomeData, Etichetta& numero, const QString& nomeNumero) {
    auto* etichetta = legame.etichetta(titolo, nome);
    auto* selettore = legame.selettoreData(data, nomeData);
    etichetta->setBuddy(selettore);
    auto* campo = legame.campo(frm.txtestr[static_cast<std::size_t>(n)], QStringLiteral("txtestr_%1").arg(n));
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + 8);
    campo->setAccessibleName(etichetta->text() + QStringLiteral(" estrazione numero"));
    griglia->addWidget(etichetta, n, 0);
    griglia->addWidget(selettore, n, 1);
    griglia->addWidget(legame.etichetta(numero, nomeNumero), n, 2);
    griglia->addWidget(campo, n, 3);
  };
  riga(0, frm.Label2Inizio, QStringLiteral("Label2_5"), frm.DTInizio, QStringLiteral("DTInizio"), frm.Label4,
       QStringLiteral("Label4"));
  riga(1, frm.Label2Fine, QStringLiteral("Label2_0"), frm.DTFine, QStringLiteral("DTFine"), frm.Label5,
       QStringLiteral("Label5"));
  griglia->setColumnStretch(4, 1);
  return gruppo;
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmStatistica>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* sinistra = new QVBoxLayout;
  sinistra->setSpacing(10);
  sinistra->addWidget(sceltaMetodo(*legame, frm->metodo));
  sinistra->addWidget(intervallo(*legame, *frm));
  auto* area = legame->area(frm->RichTextBox1, QStringLiteral("RichTextBox1"));
  area->setAccessibleName(QStringLiteral("Totali della statistica"));
  auto misura = area->sizePolicy();
  misura.setRetainSizeWhenHidden(true);  // what stands above stays in its place
  area->setSizePolicy(misura);
  sinistra->addWidget(area, 1);
  sinistra->addWidget(legame->avanzamento(frm->prgbar, QStringLiteral("prgbar")));

  auto* pulsanti = new QVBoxLayout;
  pulsanti->setSpacing(10);
  pulsanti->addWidget(legame->pulsante(frm->btnElabora, QStringLiteral("btnElabora")));
  pulsanti->addWidget(legame->pulsante(frm->btnStop, QStringLiteral("btnStop")));
  pulsanti->addSpacing(12);
  pulsanti->addWidget(legame->pulsante(frm->btnVincite, QStringLiteral("btnVincite")));
  pulsanti->addWidget(legame->pulsante(frm->btnPrev, QStringLiteral("btnPrev")));
  pulsanti->addWidget(legame->pulsante(frm->btnStampa, QStringLiteral("btnStampa")));
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));

  auto* tutto = new QHBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(18);
  tutto->addLayout(sinistra, 1);
  tutto->addLayout(pulsanti);
  widget->setProperty(kPrimoFuoco, QStringLiteral("btnElabora"));
  return widget;
}

}  // namespace vaticlo
