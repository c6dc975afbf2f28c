#pragma once

#include <stdexcept>

namespace vaticlo {

/// How a command ended: the exit status of the process.
enum Esito { kFatto = 0, kErrore = 1, kUsoErrato = 2, kRifiutato = 3, kInterrotto = 130 };

/// A command line or an input file that can't be used; the text says which and how to do it right.
class UsoErrato : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace vaticlo
