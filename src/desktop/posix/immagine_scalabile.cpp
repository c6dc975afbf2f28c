#include "desktop/immagine_scalabile.h"

#include <QPainter>
#include <QSvgRenderer>

namespace vaticlo {

struct ImmagineScalabile::Interno {
  explicit Interno(const QString& file) : svg(file) {}

  QSvgRenderer svg;
};

ImmagineScalabile::ImmagineScalabile(const QString& chiave)
    : interno_(std::make_unique<Interno>(QStringLiteral(":/artwork/%1.svg").arg(chiave))) {}

ImmagineScalabile::~ImmagineScalabile() = default;

void ImmagineScalabile::dipingi(QPainter& pittore, const QRect& area) const {
  interno_->svg.render(&pittore, area);
}

}  // namespace vaticlo
