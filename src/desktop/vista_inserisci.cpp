#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/selettore_data.h"
#include "desktop/tavola_estrazione.h"
#include "desktop/viste.h"
#include "dialogs/frm_inserisci.h"

namespace vaticlo {

QWidget* vista(const std::shared_ptr<frmInserisci>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* tavola = tavolaEstrazione(*legame, frm->txtestr);

  auto* data = new QHBoxLayout;
  auto* etichetta = legame->etichetta(frm->Label1, QStringLiteral("Label1"));
  auto* selettore = legame->selettoreData(frm->mcdatecombo1, QStringLiteral("mcdatecombo1"));
  etichetta->setBuddy(selettore);
  data->addWidget(etichetta);
  data->addWidget(selettore);
  data->addStretch(1);

  auto* pulsanti = new QVBoxLayout;
  pulsanti->setSpacing(10);
  pulsanti->addWidget(legame->pulsante(frm->btnSalva, QStringLiteral("btnSalva")));
  pulsanti->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));
  pulsanti->addStretch(1);

  auto* centro = new QHBoxLayout;
  centro->setSpacing(24);
  centro->addWidget(tavola);
  centro->addStretch(1);
  centro->addLayout(pulsanti);

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  tutto->addLayout(data);
  tutto->addLayout(centro);
  widget->setProperty(kPrimoFuoco, QStringLiteral("txtestr_0"));
  return widget;
}

}  // namespace vaticlo
