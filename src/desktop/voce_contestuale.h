#pragma once

#include <QAction>
#include <QWidget>

namespace vaticlo {

/// An entry at the end of a widget's context menu (its actions), found by its object name.
template <class Fai>
QAction* voceContestuale(QWidget& di, const char* nome, const char* caption, Fai fai) {
  auto* voce = new QAction(QString::fromUtf8(caption), &di);
  voce->setObjectName(QLatin1String(nome));
  QObject::connect(voce, &QAction::triggered, &di, fai);
  di.addAction(voce);
  return voce;
}

}  // namespace vaticlo
