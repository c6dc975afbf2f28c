#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

#include "platform/file_intero.h"

namespace vaticlo {

/// A packed file that can't be unpacked: what is wrong with it (Italian).
class ErrorePacchetto : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a zip or gzip file holds, unpacked in memory; any other bytes are given back as they are. Of a zip
/// with several files it is the one that ends in ".txt". ErrorePacchetto for one that is damaged, holds no or
/// no single such file, or more than `massimo` bytes.
[[nodiscard]] std::string spacchetta(std::string ottetti, std::size_t massimo = kMassimoTesto);

}  // namespace vaticlo
