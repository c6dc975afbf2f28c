#pragma once

#include <vector>

#include "controls/stato_controllo.h"

namespace vaticlo {

/// The pictures of a radio button, by their place in the set: the same four looks with the value off and on.
enum class AspettoOpzione {
  Spenta = 0,
  SpentaSorvolata = 1,
  SpentaPremuta = 2,
  SpentaDisabilitata = 3,
  Accesa = 4,
  AccesaSorvolata = 5,
  AccesaPremuta = 6,
  AccesaDisabilitata = 7,
};

/// Which picture a radio button shows, and what a click does to it and to the others of its window.
class StatoOpzione : public StatoControllo {
 public:
  std::function<void()> Click = [] {};
  std::function<void(bool)> ValueChanged = [](bool) {};
  std::function<std::vector<StatoOpzione*>()> opzioniDellaFinestra = [] {
    return std::vector<StatoOpzione*>();
  };

  [[nodiscard]] bool Value() const { return value_; }
  void setValue(bool value);

  /// Raises `Click` while every value is still the old one, puts all radio buttons of the window out,
  /// whatever containers they stand in, and this one on. `Click` must not destroy the control.
  void clicca();

  /// Only a move inside counts: one outside does not switch `Timer1` on, unlike on a command button.
  void MouseMove(bool dentro, bool sinistro) override;

  [[nodiscard]] AspettoOpzione aspetto() const;

 private:
  bool value_ = false;
};

}  // namespace vaticlo
