#include "desktop/immagine_scalabile.h"

#include <QImage>
#include <QPainter>
#include <vector>

namespace vaticlo {

namespace {
constexpr int kMassimaScala = 4;
}

/// The picture in once to four times its own size, in this order.
struct ImmagineScalabile::Interno {
  std::vector<QImage> misure;
};

ImmagineScalabile::ImmagineScalabile(const QString& chiave) : interno_(std::make_unique<Interno>()) {
  for (int scala = 1; scala <= kMassimaScala; ++scala)
    interno_->misure.emplace_back(QStringLiteral(":/artwork/%1-%2.png").arg(chiave).arg(scala));
}

ImmagineScalabile::~ImmagineScalabile() = default;

// The smallest one that need not grow.
void ImmagineScalabile::dipingi(QPainter& pittore, const QRect& area) const {
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
