#pragma once

#include <string>

#include "methods/testi_campi.h"

namespace vaticlo {

/// The fields of the editor read back, as somebody who types wants to know what they stand for.
struct GiocataInParole {
  std::string testo;  ///< "Si gioca: ambate 1, 90 · Bari, Cagliari · 10 colpi", or what is wrong
  bool sbagliata = false;
};

/// A help while typing and no test: a save takes and refuses what it does, whatever is said here. Fields that
/// are all empty have an empty text.
[[nodiscard]] GiocataInParole giocataInParole(const TestiPrevisione& testi);

/// The bets and wheels alone: "ambate 1, 90 · Bari, Cagliari". Of fields that are right.
[[nodiscard]] std::string puntateInParole(const TestiPrevisione& testi);

}  // namespace vaticlo
