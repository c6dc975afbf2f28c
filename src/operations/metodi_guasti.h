#pragma once

#include <string>
#include <vector>

#include "methods/catalogo.h"

namespace vaticlo {

/// A method that no run can judge, and why (Italian).
struct MetodoGuasto {
  std::string nome;
  std::string motivo;
};

/// Those among the methods chosen: one with ten predictions, one that can't be read, under "Tutti" a file
/// whose name has no ".dat". A name without a file is not one. Creates no file.
[[nodiscard]] std::vector<MetodoGuasto> metodiGuasti(const CartellaProgramma& cartella,
                                                     const SceltaMetodo& scelta);

}  // namespace vaticlo
