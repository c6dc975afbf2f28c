#pragma once

#include <QPainter>
#include <QPalette>

#include "controls/pittura.h"

namespace vaticlo {

/// A widget of the toolkit that shows that it has the focus, where the style draws nothing.
template <class Widget>
class ConFuoco : public Widget {
 public:
  using Widget::Widget;

 protected:
  void paintEvent(QPaintEvent* evento) override {
    Widget::paintEvent(evento);
    if (!this->hasFocus()) return;
    QPainter pittore(this);
    disegnaFuoco(pittore, this->rect(), this->palette().color(QPalette::Highlight));
  }
};

}  // namespace vaticlo
