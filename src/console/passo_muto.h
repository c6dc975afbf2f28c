#pragma once

#include <iostream>
#include <optional>
#include <sstream>

#include "platform/blocco.h"
#include "platform/cartella.h"

namespace vaticlo {

/// Holds the folder for a command that reads, changes and writes; what is printed meanwhile comes out when
/// the folder is free again. The other programs would wait as long as nobody reads a pipe or a terminal.
class PassoMuto {
 public:
  /// Failure CartellaOccupata.
  explicit PassoMuto(const CartellaProgramma& cartella) : blocco_(std::in_place, cartella.radice()) {
    uscita_ = std::cout.rdbuf(detto_.rdbuf());
    errori_ = std::cerr.rdbuf(segnalato_.rdbuf());
  }
  PassoMuto(const PassoMuto&) = delete;
  PassoMuto& operator=(const PassoMuto&) = delete;
  ~PassoMuto() {
    blocco_.reset();
    std::cerr.rdbuf(errori_);
    std::cout.rdbuf(uscita_);
    std::cerr << segnalato_.view();
    std::cout << detto_.view();
  }

 private:
  std::optional<BloccoCartella> blocco_;
  std::ostringstream detto_, segnalato_;
  std::streambuf *uscita_ = nullptr, *errori_ = nullptr;
};

}  // namespace vaticlo
