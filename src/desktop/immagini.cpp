#include "desktop/immagini.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>

namespace vaticlo {

namespace {

/// Draws the vector picture anew for each size it is asked for.
class MotoreSvg : public QIconEngine {
 public:
  explicit MotoreSvg(const QString& file) : disegno_(std::make_shared<QSvgRenderer>(file)) {}

  void paint(QPainter* pittore, const QRect& area, QIcon::Mode modo, QIcon::State /*stato*/) override {
    pittore->save();
    if (modo == QIcon::Disabled) pittore->setOpacity(0.4);
    disegno_->render(pittore, area);
    pittore->restore();
  }

  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap pixmap(misura);
    pixmap.fill(Qt::transparent);
    QPainter pittore(&pixmap);
    paint(&pittore, QRect(QPoint(), misura), modo, stato);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new MotoreSvg(*this); }

 private:
  std::shared_ptr<QSvgRenderer> disegno_;
};

}  // namespace

QIcon immagine(const QString& chiave) {
  return QIcon(new MotoreSvg(QStringLiteral(":/artwork/%1.svg").arg(chiave)));
}

}  // namespace vaticlo
