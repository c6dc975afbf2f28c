#pragma once

#include <bit>
#include <cstdint>

namespace vaticlo {

/// A set of numbers from 0 to 127, such as the five of a wheel. Two words, so that it lives in registers.
class InsiemeNumeri {
 public:
  constexpr void aggiungi(int numero) {
    basso_ |= bitBasso(numero);
    alto_ |= bitAlto(numero);
  }
  void togli(int numero) {
    basso_ &= ~bitBasso(numero);
    alto_ &= ~bitAlto(numero);
  }
  [[nodiscard]] bool contiene(int numero) const {
    return ((basso_ & bitBasso(numero)) | (alto_ & bitAlto(numero))) != 0;
  }
  [[nodiscard]] bool vuoto() const { return (basso_ | alto_) == 0; }
  [[nodiscard]] int quanti() const { return std::popcount(basso_) + std::popcount(alto_); }

  [[nodiscard]] bool neHaUnoDi(const InsiemeNumeri& altro) const {
    return ((basso_ & altro.basso_) | (alto_ & altro.alto_)) != 0;
  }
  [[nodiscard]] bool neHaDueDi(const InsiemeNumeri& altro) const {
    const auto a = basso_ & altro.basso_, b = alto_ & altro.alto_;
    return ((a & (a - 1)) | (b & (b - 1))) != 0 || (a != 0 && b != 0);
  }
  InsiemeNumeri& operator|=(const InsiemeNumeri& altro) {
    basso_ |= altro.basso_;
    alto_ |= altro.alto_;
    return *this;
  }
  bool operator==(const InsiemeNumeri&) const = default;

  /// Calls `fai` with each number, in ascending order.
  template <class Fai>
  void perOgni(Fai fai) const {
    for (auto resto = basso_; resto != 0; resto &= resto - 1) fai(std::countr_zero(resto));
    for (auto resto = alto_; resto != 0; resto &= resto - 1) fai(64 + std::countr_zero(resto));
  }

 private:
  static constexpr std::uint64_t bitBasso(int numero) { return std::uint64_t{numero < 64} << (numero & 63); }
  static constexpr std::uint64_t bitAlto(int numero) { return std::uint64_t{numero >= 64} << (numero & 63); }

  std::uint64_t basso_ = 0, alto_ = 0;
};

}  // namespace vaticlo
