#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "archive/data.h"

namespace vaticlo {

class CartellaProgramma;

inline constexpr std::string_view kFileArchivio = "archivion71.dat";

/// All draws ever held: a grid of bytes a(i, j, k). i is the draw (`Indice`, 1 to 15000), j the row (0 the
/// date, 1 to 11 the wheels), k the column (1 to 5: the numbers in drawing order; in the date row day, month,
/// year within the century, century, spare). A cell of 0 is "no number"; a day of 0 ends the archive. One
/// block in the order of the file, first index fastest, so that the file is one transfer.
class ArchivioEstrazioni {
 public:
  static constexpr int MaxEstrazioni = 15000;
  static constexpr int Righe = 12;
  static constexpr int Colonne = 5;
  static constexpr std::size_t Ottetti = std::size_t{MaxEstrazioni} * Righe * Colonne;

  ArchivioEstrazioni() : celle_(std::make_unique<std::uint8_t[]>(Ottetti)) {}

  /// A cell. Fails with Errore::Indice outside the grid.
  [[nodiscard]] std::uint8_t operator()(int i, int j, int k) const { return celle_[posto(i, j, k)]; }
  [[nodiscard]] std::uint8_t& operator()(int i, int j, int k) { return celle_[posto(i, j, k)]; }

  /// The first slot whose day is 0; the draws are those before it. Fails with Errore::Indice when all slots
  /// are taken.
  [[nodiscard]] int PrimoIndiceLibero() const;

  /// The date of a slot: day and month without leading zeros, then the century, then the year with a "0" in
  /// front when below 10. A free slot reads 0/0/000. Fails with Errore::Indice outside the grid.
  [[nodiscard]] std::string DataEstrazione(int i) const;

  /// Writes the date row of slot i: day, month, year within the century, the century given, the spare cell 0.
  /// Fails with Errore::Indice outside the grid.
  void scriviData(int i, const Data& data, int secolo);

  [[nodiscard]] std::span<std::uint8_t> ottetti() { return {celle_.get(), Ottetti}; }
  [[nodiscard]] std::span<const std::uint8_t> ottetti() const { return {celle_.get(), Ottetti}; }

 private:
  [[nodiscard]] static std::size_t posto(int i, int j, int k) {
    if (i < 1 || i > MaxEstrazioni || j < 0 || j >= Righe || k < 1 || k > Colonne) fuoriDallaGriglia();
    return static_cast<std::size_t>((i - 1) + MaxEstrazioni * (j + Righe * (k - 1)));
  }
  [[noreturn]] static void fuoriDallaGriglia();

  std::unique_ptr<std::uint8_t[]> celle_;
};

/// A date as the walks of a search compare it: with the cells of the date row.
struct DataCercata {
  int giorno, mese, anno;  ///< the year within its century
  int secolo;
};

/// The draw of a date, by four walks with one index: to its century, on to its year, to its month, then to a
/// day not before its own. None tests again what an earlier one found, so a month that the year does not
/// have is found in a later year, and a walk goes on through the free slots. The last walk ends at draw
/// `ultima` when one is given. MaxEstrazioni + 1 when a walk runs off the grid.
[[nodiscard]] int cercaData(const ArchivioEstrazioni& archivio, const DataCercata& data,
                            int ultima = ArchivioEstrazioni::MaxEstrazioni + 1);

/// Reads the archive of the folder into a grid of its own; a missing file is created empty. Failures of
/// leggiFile().
[[nodiscard]] ArchivioEstrazioni ApriArchivio(const CartellaProgramma& cartella);

/// Writes the whole grid. Failures of scriviFile(); the file is then as it was.
void ScriviArchivio(const CartellaProgramma& cartella, const ArchivioEstrazioni& archivio);

}  // namespace vaticlo
