#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "archive/archivio.h"

namespace vaticlo {

/// A set of wheels, walked in ascending order.
class InsiemeRuote {
 public:
  class Iteratore {
   public:
    explicit Iteratore(unsigned resto) : resto_(resto) {}
    int operator*() const { return std::countr_zero(resto_); }
    Iteratore& operator++() {
      resto_ &= resto_ - 1;
      return *this;
    }
    bool operator!=(const Iteratore& altro) const { return resto_ != altro.resto_; }

   private:
    unsigned resto_;
  };

  explicit InsiemeRuote(unsigned righe) : righe_(righe) {}
  [[nodiscard]] Iteratore begin() const { return Iteratore(righe_); }
  [[nodiscard]] Iteratore end() const { return Iteratore(0); }

 private:
  unsigned righe_;
};

/// What a hit is. The rules of the game are here and nowhere else; when to stop, what to count and what to
/// write is up to each judge. A bet's number may be any byte: a 0 is found in an empty cell like any other
/// value. What is read of a draw is kept for the next bet, so the grid must not change while the rules look
/// at it.
class RegoleVincita {
 public:
  explicit RegoleVincita(const ArchivioEstrazioni& archivio);

  /// The number is one of the five of the wheel; the position plays no part. Meant: wheel 0 is the date
  /// row and is read like the others. Fails with Errore::Indice for a draw or a wheel outside the grid.
  [[nodiscard]] bool ambata(int numero, int ruota, int estrazione) const;

  /// The wheels, 1 to 11, on which both numbers are. Fails with Errore::Indice for a draw outside the grid.
  [[nodiscard]] InsiemeRuote ambo(int a, int b, int estrazione) const;

  /// The numbers of the combination that are on the wheel, in the combination's order, each place counted;
  /// none for a wheel that is not 1 to 11. Two to five of them are a hit (ambo, terno, quaterna, cinquina),
  /// no other count.
  [[nodiscard]] std::vector<int> sorte(std::span<const std::int16_t> combinazione, int ruota,
                                       int estrazione) const;

 private:
  // For each value of a cell the rows of the draw that hold it, a bit a row.
  using RigheDelNumero = std::array<std::uint16_t, 256>;
  [[nodiscard]] const RigheDelNumero& righe(int estrazione) const;

  const ArchivioEstrazioni& archivio_;
  mutable std::vector<std::unique_ptr<RigheDelNumero>> righe_;
};

}  // namespace vaticlo
