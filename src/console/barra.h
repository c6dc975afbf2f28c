#pragma once

namespace vaticlo {

/// A progress bar on standard error when that is a terminal, drawn anew when the percentage changes and wiped
/// out at the end.
class BarraSuTerminale {
 public:
  BarraSuTerminale();

  void mostra(int fatto, int tutto);
  void togli() const;

 private:
  bool terminale_;
  int percento_ = -1;
};

}  // namespace vaticlo
