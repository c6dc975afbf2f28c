#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/legame.h"
#include "desktop/riquadri.h"
#include "desktop/viste.h"
#include "dialogs/frm_gestione_metodi.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_migliore.h"

namespace vaticlo {

QWidget* vista(const std::shared_ptr<frmInfo>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* titolo = legame->etichetta(frm->Label1, QStringLiteral("Label1"));
  auto grande = titolo->font();
  grande.setPointSizeF(grande.pointSizeF() * 2.6);
  grande.setBold(true);
  titolo->setFont(grande);

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(24, 20, 24, 20);
  tutto->setSpacing(10);
  tutto->addStretch(1);
  tutto->addWidget(titolo, 0, Qt::AlignCenter);
  tutto->addWidget(legame->etichetta(frm->Label2, QStringLiteral("Label2")), 0, Qt::AlignCenter);
  tutto->addWidget(legame->etichetta(frm->Label3, QStringLiteral("Label3")), 0, Qt::AlignCenter);
  auto* licenza = legame->etichetta(frm->Label4, QStringLiteral("Label4"));
  licenza->setWordWrap(true);
  licenza->setAlignment(Qt::AlignCenter);
  tutto->addWidget(licenza);
  tutto->addStretch(1);
  return widget;
}

QWidget* vista(const std::shared_ptr<frmMigliore>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(8, 8, 8, 8);
  auto* area = legame->area(frm->RichTextBox1, QStringLiteral("RichTextBox1"));
  area->setAccessibleName(QString::fromStdString(frm->Caption()));
  tutto->addWidget(area);
  return widget;
}

QWidget* vista(const std::shared_ptr<frmGestioneMetodi>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);
  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  tutto->addWidget(
      riquadroCon(*legame, frm->Frame1, QStringLiteral("Frame1"),
                  legame->elenco(frm->cmbMetodo, QStringLiteral("cmbMetodo"), ElencoVista::Tipo::Chiuso)));
  tutto->addWidget(riquadroCon(*legame, frm->Frame2, QStringLiteral("Frame2"),
                               legame->campo(frm->txtNome, QStringLiteral("txtNome"))));
  tutto->addStretch(1);
  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(legame->pulsante(frm->btnRinomina, QStringLiteral("btnRinomina")));
  pulsanti->addWidget(legame->pulsante(frm->btnElimina, QStringLiteral("btnElimina")));
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnEsci, QStringLiteral("btnEsci")));
  tutto->addLayout(pulsanti);
  return widget;
}

}  // namespace vaticlo
