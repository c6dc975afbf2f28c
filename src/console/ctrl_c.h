#pragma once

namespace vaticlo {

/// While it lives, Ctrl-C leaves a mark for long work to look at instead of ending the process.
class CtrlC {
 public:
  CtrlC();
  CtrlC(const CtrlC&) = delete;
  CtrlC& operator=(const CtrlC&) = delete;
  ~CtrlC();

  [[nodiscard]] static bool premuto();

 private:
  void (*prima_)(int);
};

}  // namespace vaticlo
