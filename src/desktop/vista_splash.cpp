#include "desktop/vista_splash.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <utility>

#include "desktop/immagine_scalabile.h"
#include "desktop/immagini.h"

namespace vaticlo {

VistaSplash::VistaSplash(std::function<void()> apriPrincipale)
    : QWidget(nullptr, Qt::FramelessWindowHint), apriPrincipale_(std::move(apriPrincipale)) {
  setObjectName(QStringLiteral("frmSplash"));
  setWindowTitle(QStringLiteral("Vaticlo"));
  setWindowIcon(immagine(QStringLiteral("vaticlo")));
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(560, 340);
  if (const auto* schermo = QGuiApplication::primaryScreen())
    move(schermo->availableGeometry().center() - rect().center());
  timer1_.setSingleShot(true);
  timer1_.setTimerType(Qt::PreciseTimer);
  timer1_.setInterval(kIntervallo);
  connect(&timer1_, &QTimer::timeout, this, &VistaSplash::avanti);
}

void VistaSplash::showEvent(QShowEvent* evento) {
  QWidget::showEvent(evento);
  timer1_.start();
}

void VistaSplash::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  ImmagineScalabile(QStringLiteral("splash")).dipingi(pittore, rect());
}

void VistaSplash::keyPressEvent(QKeyEvent* /*evento*/) { avanti(); }

void VistaSplash::closeEvent(QCloseEvent* evento) {
  timer1_.stop();
  QWidget::closeEvent(evento);
}

void VistaSplash::avanti() {
  timer1_.stop();
  if (const auto apri = std::exchange(apriPrincipale_, {})) {
    apri();
    close();
  }
}

}  // namespace vaticlo
