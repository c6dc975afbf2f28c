#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/cartella.h"
#include "platform/file_intero.h"

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

  /// A cell. Fails with Errore::Indice outside the grid.
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

/// Reads the file of a method; a missing one reads as having no predictions, and is created empty unless
/// `seManca` says otherwise. Failures of leggiFile().
[[nodiscard]] FileMetodo LeggiMetodo(const CartellaProgramma& cartella, std::string_view nome,
                                     SeManca seManca = SeManca::Crea);

/// Writes the whole grid. Failures of scriviFile(); the file is then as it was.
void ScriviMetodo(const CartellaProgramma& cartella, std::string_view nome, const FileMetodo& metodo);

// Nothing in a slot says that it is taken. Scan, list and save each have a rule of their own, and they differ
// on purpose.

/// How many predictions every scan sees: those before the first slot whose draw number ends in 00. Fails with
/// Errore::Indice when none of the ten does.
/// Meant: a prediction on draw 3500 hides itself and those after it (guide: "Le estrazioni con il numero
/// tondo", "La decima previsione di un metodo").
[[nodiscard]] int ContaPrevisioni(const FileMetodo& metodo);

/// How many predictions the editor lists: those before the first slot whose draw number is 0, so also those
/// that ContaPrevisioni() does not see. Fails with Errore::Indice when all ten slots have one.
[[nodiscard]] int ContaElencate(const FileMetodo& metodo);

/// The slot that takes a new prediction: the first one whose draw number is below 100; 0 when there is none.
/// Meant: a prediction on one of the first 99 draws counts as free and is written over (guide: "Le prime
/// novantanove estrazioni").
[[nodiscard]] int PrimoSlotLibero(const FileMetodo& metodo);

/// Copies all cells of slot `da` of one method into slot `a` of another. Fails with Errore::Indice for a slot
/// outside the grid.
void CopiaSlot(const FileMetodo& origine, int da, FileMetodo& destinazione, int a);

/// All cells of a slot become 0.
void SvuotaSlot(FileMetodo& metodo, int slot);

/// The predictions but that of `slot`, those after it one slot lower, as the editor's delete makes them.
/// Meant: it goes on over far more slots than a method has, so it always fails with Errore::Indice.
[[nodiscard]] FileMetodo SenzaPrevisione(const FileMetodo& metodo, int slot);

}  // namespace vaticlo
