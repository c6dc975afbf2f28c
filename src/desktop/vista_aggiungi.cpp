#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/legame.h"
#include "desktop/prospetto_vista.h"
#include "desktop/viste.h"
#include "dialogs/frm_aggiungi.h"

namespace vaticlo {

namespace {
constexpr int kRigheAvvertenze = 4;
constexpr int kQuasiTutto = 100;  // of the height that is left, for the table when it is there
}  // namespace

QWidget* vista(const std::shared_ptr<frmAggiungi>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);

  const auto etichetta = [&](Etichetta& modello, const char* nome) {
    auto* testo = legame->etichetta(modello, QLatin1String(nome));
    testo->setWordWrap(true);
    tutto->addWidget(testo);
  };
  etichetta(frm->lblArchivio, "lblArchivio");
  auto* fonte = legame->riquadro(frm->Frame1, QStringLiteral("Frame1"));
  auto* scelte = new QHBoxLayout(fonte);
  scelte->addWidget(legame->pulsante(frm->btnInternet, QStringLiteral("btnInternet")));
  scelte->addWidget(legame->pulsante(frm->btnFile, QStringLiteral("btnFile")));
  scelte->addStretch(1);
  tutto->addWidget(fonte);
  etichetta(frm->lblAnteprima, "lblAnteprima");
  auto* avvertenze = legame->area(frm->txtAvvertenze, QStringLiteral("txtAvvertenze"));
  avvertenze->setAccessibleName(QStringLiteral("Avvertenze"));
  avvertenze->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  avvertenze->setFixedHeight(avvertenze->fontMetrics().lineSpacing() * kRigheAvvertenze + 14);
  tutto->addWidget(avvertenze);
  etichetta(frm->lblDifferenze, "lblDifferenze");
  tutto->addWidget(legame->prospetto(frm->differenze, QStringLiteral("differenze")), kQuasiTutto);
  tutto->addStretch(1);

  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(legame->pulsante(frm->btnAggiungi, QStringLiteral("btnAggiungi")));
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnEsci, QStringLiteral("btnEsci")));
  tutto->addLayout(pulsanti);
  widget->setProperty(kPrimoFuoco, QStringLiteral("btnInternet"));
  return widget;
}

}  // namespace vaticlo
