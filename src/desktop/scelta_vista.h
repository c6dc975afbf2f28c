#pragma once

#include "desktop/legame.h"
#include "dialogs/scelta_metodo.h"

namespace vaticlo {

/// The frame that chooses between all methods and one.
[[nodiscard]] QGroupBox* sceltaMetodo(Legame& legame, ControlliMetodo& metodo);

}  // namespace vaticlo
