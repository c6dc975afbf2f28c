#include <QHBoxLayout>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/tavola_estrazione.h"
#include "desktop/viste.h"
#include "dialogs/frm_modifica.h"

namespace vaticlo {

QWidget* vista(const std::shared_ptr<frmModifica>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* testa =
      intestazione(*legame, frm->Label1, frm->estrazione.lblnestr, frm->Label13, frm->estrazione.lbldataestr);
  auto* tavola = tavolaConBarra(*legame, frm->estrazione);

  auto* pulsanti = new QVBoxLayout;
  pulsanti->setSpacing(10);
  pulsanti->addWidget(legame->pulsante(frm->btnSalva, QStringLiteral("btnSalva")));
  pulsanti->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));
  pulsanti->addWidget(legame->pulsante(frm->btnTrova, QStringLiteral("btnTrova")));
  pulsanti->addWidget(legame->pulsante(frm->btnAnnulla, QStringLiteral("btnAnnulla")));
  pulsanti->addStretch(1);

  auto* centro = new QHBoxLayout;
  centro->setSpacing(24);
  centro->addWidget(tavola);
  centro->addStretch(1);
  centro->addLayout(pulsanti);

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  tutto->addLayout(testa);
  tutto->addLayout(centro);
  widget->setProperty(kPrimoFuoco, QStringLiteral("txtestr_0"));
  return widget;
}

}  // namespace vaticlo
