#pragma once

#include <QColor>

#include "forms/controlli.h"

namespace vaticlo {

/// Whether a desktop with this background is a dark one.
[[nodiscard]] inline bool scuro(const QColor& sfondo) { return qGray(sfondo.rgb()) < 128; }

/// The colour of a text of that tone, readable on the background.
[[nodiscard]] QColor coloreDi(Tono tono, const QColor& sfondo);

}  // namespace vaticlo
