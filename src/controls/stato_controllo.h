#pragma once

#include <chrono>
#include <functional>

namespace vaticlo {

struct ColoreControllo {
  int rosso = 0;
  int verde = 0;
  int blu = 0;
};

inline constexpr ColoreControllo kDidascaliaDisabilitata{161, 161, 146};
inline constexpr std::chrono::milliseconds kIntervalloTimer1{10};

/// What every self-drawn control does under the mouse. The hover ends only by `Timer1`: while that is on the
/// control looks every 10 ms whether the pointer is still inside, and nothing else notices that it has left.
class StatoControllo {
 public:
  StatoControllo() = default;
  StatoControllo(const StatoControllo&) = delete;
  StatoControllo& operator=(const StatoControllo&) = delete;
  virtual ~StatoControllo() = default;

  std::function<void()> MouseOut = [] {};  // raised while the old look is still shown

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  void MouseDown() { fase_ = Fase::Premuto; }
  virtual void MouseMove(bool dentro, bool sinistro);
  void MouseUp() { Aggiorna(); }
  void Timer1_Timer(bool dentro);
  [[nodiscard]] bool timer1Acceso() const { return timer1_; }
  [[nodiscard]] bool premuto() const { return fase_ == Fase::Premuto; }

  void Aggiorna() { fase_ = Fase::Riposo; }  // back to the resting look

 protected:
  enum class Fase { Riposo, Sorvolato, Premuto };
  [[nodiscard]] Fase fase() const { return fase_; }

 private:
  Fase fase_ = Fase::Riposo;
  bool enabled_ = true;
  bool timer1_ = false;
};

}  // namespace vaticlo
