#pragma once

#include <iostream>
#include <optional>
#include <sstream>

#include "platform/blocco.h"
#include "platform/cartella.h"

namespace vaticlo {

/// Holds the folder for a command that reads, changes and writes; what is printed meanwhile comes out when
/// the folder is free again. The standard output may be a pipe that nobody reads, and the other programs
/// wait.
class PassoMuto {
 public:
  /// Failure CartellaOccupata.
  explicit PassoMuto(const CartellaProgramma& cartella) : blocco_(std::in_place, cartella.radice()) {
    uscita_ = std::cout.rdbuf(detto_.rdbuf());
  }
  PassoMuto(const PassoMuto&) = delete;
  PassoMuto& operator=(const PassoMuto&) = delete;
  ~PassoMuto() {
    blocco_.reset();
    std::cout.rdbuf(uscita_);
    std::cout << detto_.view();
  }

 private:
  std::optional<BloccoCartella> blocco_;
  std::ostringstream detto_;
  std::streambuf* uscita_ = nullptr;
};

}  // namespace vaticlo
