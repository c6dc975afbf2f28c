#pragma once

#include "controls/stato_controllo.h"

namespace vaticlo {

/// The pictures of a command button, by their place in the set.
enum class AspettoPulsante { Normale = 0, Premuto = 1, Disabilitato = 2, Sorvolato = 3, Secondo = 4 };

/// Which picture a command button shows.
class StatoPulsante : public StatoControllo {
 public:
  [[nodiscard]] int State() const { return state_; }
  void setState(int state);  // 0 and 1 choose the resting look; any other value leaves it as it was

  [[nodiscard]] AspettoPulsante aspetto() const;

 private:
  int state_ = 0;
  AspettoPulsante riposo_ = AspettoPulsante::Normale;
};

}  // namespace vaticlo
