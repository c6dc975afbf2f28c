#include "desktop/disegno.h"

#include <QImage>
#include <QPainter>
#include <vector>

namespace vaticlo {

namespace {
constexpr int kMassimaScala = 4;
}

/// The picture in once to four times its own size, in this order.
struct Disegno::Interno {
  std::vector<QImage> misure;
};

Disegno::Disegno(const QString& chiave) : interno_(std::make_unique<Interno>()) {
  for (int scala = 1; scala <= kMassimaScala; ++scala)
    interno_->misure.emplace_back(QStringLiteral(":/artwork/%1-%2.png").arg(chiave).arg(scala));
}

Disegno::~Disegno() = default;

// The smallest one that need not grow.
void Disegno::dipingi(QPainter& pittore, const QRect& area) const {
  const auto punti = area.width() * pittore.device()->devicePixelRatioF();
  const auto* quale = &interno_->misure.front();
  for (const auto& misura : interno_->misure)
    if (quale->width() < punti) quale = &misura;
  pittore.save();
  pittore.setRenderHint(QPainter::SmoothPixmapTransform);
  pittore.drawImage(area, *quale);
  pittore.restore();
}

}  // namespace vaticlo
