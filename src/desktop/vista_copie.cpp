#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/legame.h"
#include "desktop/prospetto_vista.h"
#include "desktop/viste.h"
#include "dialogs/frm_copie.h"

namespace vaticlo {

QWidget* vista(const std::shared_ptr<frmCopie>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  auto* nota = legame->etichetta(frm->lblNota, QStringLiteral("lblNota"));
  nota->setWordWrap(true);
  tutto->addWidget(nota);
  tutto->addWidget(legame->prospetto(frm->copie, QStringLiteral("copie")), 1);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(legame->pulsante(frm->btnRipristina, QStringLiteral("btnRipristina")));
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnEsci, QStringLiteral("btnEsci")));
  tutto->addLayout(pulsanti);
  widget->setProperty(kPrimoFuoco, QStringLiteral("copie"));
  return widget;
}

}  // namespace vaticlo
