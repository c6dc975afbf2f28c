#pragma once

#include <cstdint>

#include "analysis/giocata.h"

namespace vaticlo {

/// An archive of chance that is nowhere kept: what a wheel draws is worked out from the seed, the run, the
/// draw and the wheel alone, in any order and by any thread. All sets of five of the ninety numbers are
/// equally likely, to one part in a thousand million.
class EstrazioniACaso {
 public:
  EstrazioniACaso(std::uint64_t seme, int prova)
      : base_(mescola(mescola(seme) + static_cast<std::uint64_t>(prova))) {}

  /// The five numbers of wheel 1 to 11 in a draw.
  [[nodiscard]] InsiemeNumeri estratti(int estrazione, int ruota) const {
    auto caso = mescola(base_ + kPasso * static_cast<std::uint64_t>(estrazione * 16 + ruota));
    InsiemeNumeri numeri;
    // Each step takes one of the first j numbers, or j itself in place of one that is in already.
    for (int j = kNumeri - kEstratti + 1; j <= kNumeri; ++j) {
      const auto prodotto = static_cast<Doppio>(caso) * static_cast<std::uint64_t>(j);
      const int numero = static_cast<int>(prodotto >> 64) + 1;
      caso = static_cast<std::uint64_t>(prodotto);  // what is left of the randomness
      numeri.aggiungi(numeri.contiene(numero) ? j : numero);
    }
    return numeri;
  }

 private:
  __extension__ using Doppio = unsigned __int128;
  static constexpr std::uint64_t kPasso = 0x9E3779B97F4A7C15U;

  /// The finalizer of SplitMix64: neighbours become unrelated.
  static std::uint64_t mescola(std::uint64_t x) {
    x += kPasso;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9U;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBU;
    return x ^ (x >> 31);
  }

  std::uint64_t base_;
};

}  // namespace vaticlo
