#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "analysis/insieme_numeri.h"
#include "archive/ruota.h"

namespace vaticlo {

/// An archive of chance that is not stored: what a wheel draws is worked out from the seed, the run, the
/// draw and the wheel alone, in any order and by any thread. All sets of five of the ninety numbers are
/// equally likely, to one part in a thousand million.
class EstrazioniACaso {
 public:
  EstrazioniACaso(std::uint64_t seme, int prova)
      : base_(mescola(mescola(seme) + static_cast<std::uint64_t>(prova))) {}

  /// The five numbers of wheel 1 to 11 in a draw.
  [[nodiscard]] InsiemeNumeri estratti(int estrazione, int ruota) const {
    auto caso = mescola(base_ + kPasso * static_cast<std::uint64_t>(estrazione * 16 + ruota));
    // Two pairs and a number, taken anew until they are five different ones: every set of five comes in as
    // many ways. With a table of the pairs that is quicker than number by number.
    for (;; caso = mescola(caso)) {
      auto resto = caso;
      auto numeri = kCoppie[uno(resto, kCoppie.size())];
      const auto& altri = kCoppie[uno(resto, kCoppie.size())];
      const int ultimo = static_cast<int>(uno(resto, kNumeri)) + 1;
      if (numeri.neHaUnoDi(altri)) continue;
      numeri |= altri;
      if (numeri.contiene(ultimo)) continue;
      numeri.aggiungi(ultimo);
      return numeri;
    }
  }

 private:
  __extension__ using Doppio = unsigned __int128;
  static constexpr std::uint64_t kPasso = 0x9E3779B97F4A7C15U;
  static constexpr auto kCoppie = [] {
    std::array<InsiemeNumeri, std::size_t{kNumeri} * (kNumeri - 1) / 2> coppie{};
    std::size_t n = 0;
    for (int a = 1; a <= kNumeri; ++a)
      for (int b = a + 1; b <= kNumeri; ++b, ++n) {
        coppie[n].aggiungi(a);
        coppie[n].aggiungi(b);
      }
    return coppie;
  }();

  /// One of `quanti`, from 0; what is left of the randomness stays for the next.
  static std::size_t uno(std::uint64_t& caso, std::size_t quanti) {
    const auto prodotto = static_cast<Doppio>(caso) * quanti;
    caso = static_cast<std::uint64_t>(prodotto);
    return static_cast<std::size_t>(prodotto >> 64);
  }

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
