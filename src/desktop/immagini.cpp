#include "desktop/immagini.h"

#include <QIconEngine>
#include <QPainter>
#include <memory>

#include "desktop/immagine_scalabile.h"

namespace vaticlo {

namespace {

/// Draws the picture anew for each size it is asked for.
class MotoreDisegno : public QIconEngine {
 public:
  explicit MotoreDisegno(const QString& chiave)
      : disegno_(std::make_shared<const ImmagineScalabile>(chiave)) {}

  void paint(QPainter* pittore, const QRect& area, QIcon::Mode modo, QIcon::State /*stato*/) override {
    pittore->save();
    if (modo == QIcon::Disabled) pittore->setOpacity(0.4);
    disegno_->dipingi(*pittore, area);
    pittore->restore();
  }

  QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State stato) override {
    QPixmap pixmap(misura);
    pixmap.fill(Qt::transparent);
    QPainter pittore(&pixmap);
    paint(&pittore, QRect(QPoint(), misura), modo, stato);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new MotoreDisegno(*this); }

 private:
  std::shared_ptr<const ImmagineScalabile> disegno_;
};

}  // namespace

QIcon immagine(const QString& chiave) { return QIcon(new MotoreDisegno(chiave)); }

}  // namespace vaticlo
