#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/cartella.h"

namespace vaticlo {

/// The fields of a prediction slot, as the method file numbers them.
enum Campo { kCampoEstrazione, kCampoData, kCampoRuote, kCampoColpi, kCampoAmbate, kCampoAmbi, kCampoSup };

inline constexpr int kChiusura = 99;  ///< the cell that closes a group of ambi or of sorti superiori

/// One method: a grid of bytes of ten prediction slots (1 to 10), seven fields (0 to 6) and 180 positions (1
/// to 180), one block in the order of its file, the slot running fastest, so that ten slots lie interleaved.
/// Slots are filled from 1 upward and no flag marks one as taken. Lists end at the first 0 cell.
class FileMetodo {
 public:
  static constexpr int Slot = 10;
  static constexpr int Campi = 7;
  static constexpr int Posizioni = 180;
  static constexpr std::size_t Ottetti = std::size_t{Slot} * Campi * Posizioni;

  /// A cell. Failure 9 outside the grid.
  [[nodiscard]] std::uint8_t operator()(int slot, int campo, int pos) const {
    return celle_[posto(slot, campo, pos)];
  }
  [[nodiscard]] std::uint8_t& operator()(int slot, int campo, int pos) {
    return celle_[posto(slot, campo, pos)];
  }

  /// The number of the draw on which the prediction of a slot was calculated.
  [[nodiscard]] std::int16_t EstrazioneCalcolo(int slot) const;

  [[nodiscard]] std::span<std::uint8_t> ottetti() { return celle_; }
  [[nodiscard]] std::span<const std::uint8_t> ottetti() const { return celle_; }

 private:
  [[nodiscard]] static std::size_t posto(int slot, int campo, int pos) {
    if (slot < 1 || slot > Slot || campo < 0 || campo >= Campi || pos < 1 || pos > Posizioni)
      fuoriDallaGriglia();
    return static_cast<std::size_t>((slot - 1) + Slot * (campo + Campi * (pos - 1)));
  }
  [[noreturn]] static void fuoriDallaGriglia();

  std::array<std::uint8_t, Ottetti> celle_{};
};

/// Reads the file of a method; a missing one is created empty and reads as having no predictions.
/// Failures of leggiFile().
[[nodiscard]] FileMetodo LeggiMetodo(const CartellaProgramma& cartella, std::string_view nome);

/// Writes the whole grid. Failures of scriviFile(); the file is then as it was.
void ScriviMetodo(const CartellaProgramma& cartella, std::string_view nome, const FileMetodo& metodo);

/// How many predictions every scan sees: up to the first slot whose remainder cell is 0. A draw number that
/// is a multiple of 100 so hides its slot and those behind it, which is meant. Failure 9 when all ten slots
/// are taken.
[[nodiscard]] int ContaPrevisioni(const FileMetodo& metodo);

}  // namespace vaticlo
