#pragma once

#include <array>

namespace vaticlo {

struct Misura {
  int larghezza = 0;
  int altezza = 0;
  friend bool operator==(const Misura&, const Misura&) = default;
};

struct Rettangolo {
  int x = 0;
  int y = 0;
  int larghezza = 0;
  int altezza = 0;
  friend bool operator==(const Rettangolo&, const Rettangolo&) = default;
};

/// One of the nine parts of a picture and the place of the control that it is stretched into.
struct Pezzo {
  Rettangolo origine;
  Rettangolo destinazione;
};

inline constexpr Misura kMisuraImmagine{18, 21};
inline constexpr int kAngolo = 3;

/// Cuts a picture into four corners that keep their size, four edges and a centre, in this order: the corners
/// clockwise from the top left, the edges top, right, left, bottom, the centre. A control smaller than its
/// corners gives edges with a size of 0 or less, which are not to be drawn.
[[nodiscard]] std::array<Pezzo, 9> novePezzi(Misura destinazione, Misura origine = kMisuraImmagine,
                                             int angolo = kAngolo);

}  // namespace vaticlo
