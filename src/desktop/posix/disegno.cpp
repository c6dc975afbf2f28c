#include "desktop/disegno.h"

#include <QPainter>
#include <QSvgRenderer>

namespace vaticlo {

struct Disegno::Interno {
  explicit Interno(const QString& file) : svg(file) {}

  QSvgRenderer svg;
};

Disegno::Disegno(const QString& chiave)
    : interno_(std::make_unique<Interno>(QStringLiteral(":/artwork/%1.svg").arg(chiave))) {}

Disegno::~Disegno() = default;

void Disegno::dipingi(QPainter& pittore, const QRect& area) const { interno_->svg.render(&pittore, area); }

}  // namespace vaticlo
