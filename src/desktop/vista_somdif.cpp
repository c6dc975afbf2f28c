#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "archive/ruota.h"
#include "controls/xpcmdbutton.h"
#include "controls/xpradiobutton.h"
#include "desktop/tavola_estrazione.h"
#include "desktop/viste.h"
#include "dialogs/frm_somdif.h"

namespace vaticlo {

namespace {

QWidget* tavola(Legame& legame, frmSomdif& frm) {
  auto* widget = new QWidget(legame.vista());
  auto* griglia = new QGridLayout(widget);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(4);
  for (int c = 0; c < static_cast<int>(frm.colonne.size()); ++c) {
    const auto colonna = static_cast<std::size_t>(c);
    auto* testa = new QLabel(QString::fromUtf8(kCoppiePosizioni[colonna].testa), widget);
    testa->setObjectName(c == 0 ? QStringLiteral("Label12") : QStringLiteral("Label%1").arg(13 + c));
    testa->setAlignment(Qt::AlignCenter);
    testa->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    griglia->addWidget(testa, 0, c + 1);
    for (int i = 0; i < kRuoteSomDif; ++i) {
      auto* campo =
          legame.campo(frm.colonne[colonna][static_cast<std::size_t>(i)],
                       QStringLiteral("txtestr%1_%2").arg(c == 0 ? QString() : QString::number(c)).arg(i));
      campo->setAlignment(Qt::AlignCenter);
      campo->setMinimumWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 8);
      campo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
      griglia->addWidget(campo, i + 1, c + 1);
    }
  }
  for (int i = 0; i < kRuoteSomDif; ++i) {
    auto* etichetta = new QLabel(QString::fromUtf8(kTavolaRuote[static_cast<std::size_t>(i)].nome), widget);
    etichetta->setObjectName(QStringLiteral("Label%1").arg(i + 2));
    griglia->addWidget(etichetta, i + 1, 0);
  }
  aggiungiBarra(legame, *widget, frm.VScroll1, 1);
  return widget;
}

}  // namespace

QWidget* vista(const std::shared_ptr<frmSomdif>& frm, const Confine& confine) {
  auto* widget = new QWidget;
  auto* legame = new Legame(widget, frm, confine);

  auto* testa = intestazione(*legame, frm->Label1, frm->lblnestr, frm->Label13, frm->lbldataestr);
  auto* sotto = new QHBoxLayout;
  sotto->setSpacing(18);
  sotto->addWidget(legame->opzioneDisegnata(frm->optdistciclo, QString::fromStdString(frm->Label28.Caption()),
                                            QStringLiteral("optdistciclo")));
  sotto->addWidget(legame->opzioneDisegnata(frm->optdistmat, QString::fromStdString(frm->Label27.Caption()),
                                            QStringLiteral("optdistmat")));
  sotto->addWidget(legame->opzioneDisegnata(frm->optsommat, QString::fromStdString(frm->Label26.Caption()),
                                            QStringLiteral("optsommat")));
  sotto->addStretch(1);
  sotto->addWidget(
      legame->pulsanteConImmagine(frm->btnTrova, QStringLiteral("btnTrova"), QStringLiteral("Trova")));
  sotto->addWidget(legame->pulsante(frm->btnAnnulla, QStringLiteral("btnAnnulla")));

  auto* tutto = new QVBoxLayout(widget);
  tutto->setContentsMargins(14, 12, 14, 12);
  tutto->setSpacing(12);
  tutto->addLayout(testa);
  tutto->addWidget(tavola(*legame, *frm), 1);
  tutto->addLayout(sotto);
  widget->setProperty(kPrimoFuoco, QStringLiteral("VScroll1"));
  return widget;
}

}  // namespace vaticlo
