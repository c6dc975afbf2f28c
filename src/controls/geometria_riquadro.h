#pragma once

#include "controls/nove_pezzi.h"

namespace vaticlo {

inline constexpr int kSinistraDidascalia = 15;

/// Where the parts of a group box lie: the caption's middle is on the frame's top line, and `interno` is what
/// the frame and the caption leave to the box's contents.
struct GeometriaRiquadro {
  Rettangolo cornice;
  Rettangolo didascalia;
  Rettangolo interno;
};

/// `etichetta` is the size of the caption; without one its height is still that of a line of text.
[[nodiscard]] GeometriaRiquadro disponiRiquadro(Misura controllo, Misura etichetta);

}  // namespace vaticlo
