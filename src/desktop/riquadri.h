#pragma once

#include "desktop/legame.h"
#include "forms/controlli_metodo.h"

namespace vaticlo {

/// The frame that chooses between all methods and one.
[[nodiscard]] QGroupBox* sceltaMetodo(Legame& legame, ControlliMetodo& metodo);

/// A frame around one widget, which is called by the frame's caption.
[[nodiscard]] QGroupBox* riquadroCon(Legame& legame, Riquadro& riquadro, const QString& nome,
                                     QWidget* dentro);

}  // namespace vaticlo
