#pragma once

#include <functional>
#include <string>

#include "platform/failure.h"

namespace vaticlo {

/// The boundary between toolkit and logic: every event of a widget reaches the logic through it. A run-time
/// failure that nothing caught ends the program with one message box; only that of a folder which another
/// program holds is told, and the program goes on.
class Confine {
 public:
  using Fine = std::function<void(const RuntimeFailure&)>;

  /// `fine` ends the program with the failure; a test gives its own.
  explicit Confine(Fine fine = &Confine::terminaProgramma) : fine_(std::move(fine)) {}

  /// The same boundary for the events of a window: a failure that crosses it bears the window's caption.
  [[nodiscard]] Confine nella(std::string finestra) const;

  void esegui(const std::function<void()>& evento) const;

 private:
  static void diRiprovare();
  [[noreturn]] static void terminaProgramma(const RuntimeFailure& failure);

  Fine fine_;
  std::string finestra_;
};

}  // namespace vaticlo
