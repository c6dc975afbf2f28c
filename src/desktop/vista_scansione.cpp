#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QVBoxLayout>

#include "controls/xpcmdbutton.h"
#include "desktop/riquadri.h"
#include "desktop/viste.h"
#include "dialogs/frm_vinc.h"

namespace vaticlo {

namespace {

/// The number of last draws with its arrows: least and greatest value, no text typed in, no wrap-around.
QWidget* ultimeEstrazioni(Legame& legame, const std::shared_ptr<frmVinc>& frm) {
  auto* gruppo = legame.riquadro(frm->Frame1, QStringLiteral("Frame1"));
  auto* frecce = new QSpinBox(gruppo);
  frecce->setObjectName(QStringLiteral("UpDown1"));
  frecce->setAccessibleName(gruppo->title());
  frecce->setRange(frmVinc::kMinimoUltime, frmVinc::kMassimoUltime);
  frecce->setValue(QString::fromStdString(frm->txtColpi.Text()).toInt());
  frecce->findChild<QLineEdit*>()->setReadOnly(true);
  frecce->findChild<QLineEdit*>()->setObjectName(QStringLiteral("txtColpi"));
  QObject::connect(frecce, &QSpinBox::valueChanged, &legame, [frm, &confine = legame.confine()](int ultime) {
    confine.esegui([&] { frm->UpDown1_Change(ultime); });
  });
  auto* riga = new QHBoxLayout(gruppo);
  riga->addWidget(frecce);
  riga->addStretch(1);
  return gruppo;
}

}  // namespace

QWidget* vista(const std::shared_ptr<ElencoScansione>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* sopra = new QVBoxLayout;  // side by side they would be wider than the window
  sopra->addWidget(sceltaMetodo(*legame, frm->metodo));
  if (const auto vincenti = std::dynamic_pointer_cast<frmVinc>(frm))
    sopra->addWidget(ultimeEstrazioni(*legame, vincenti));

  auto* nota = legame->etichetta(frm->lblPrev, QStringLiteral("lblPrev"));
  auto colori = nota->palette();
  const bool scuro =
      colori.color(QPalette::Window).lightness() < colori.color(QPalette::WindowText).lightness();
  colori.setColor(QPalette::WindowText, scuro ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC0, 0x28, 0x28));
  nota->setPalette(colori);
  nota->setAlignment(Qt::AlignCenter);
  auto* area = legame->area(frm->RichTextBox1, QStringLiteral("RichTextBox1"));
  area->setAccessibleName(QString::fromStdString(frm->Caption()));

  auto* posto = new QWidget(widget);  // it stays when both are hidden, so that nothing moves during a scan
  auto* alterni = new QVBoxLayout(posto);
  alterni->setContentsMargins(0, 0, 0, 0);
  alterni->addWidget(nota);
  alterni->addWidget(area);

  auto* pulsanti = new QHBoxLayout;
  pulsanti->addWidget(legame->avanzamento(frm->prgbar, QStringLiteral("prgbar")), 1);
  pulsanti->addStretch(1);
  pulsanti->addWidget(legame->pulsante(frm->btnStampa, QStringLiteral("btnStampa")));
  pulsanti->addWidget(legame->pulsante(frm->btnCancella, QStringLiteral("btnCancella")));

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(10);
  tutto->addLayout(sopra);
  tutto->addWidget(posto, 1);
  tutto->addLayout(pulsanti);
  return widget;
}

}  // namespace vaticlo
