#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// The program folder: where the archive, the methods and the report files lie, whatever the current folder
/// is.
class CartellaProgramma {
 public:
  explicit CartellaProgramma(std::filesystem::path radice) : radice_(std::move(radice)) {}

  [[nodiscard]] const std::filesystem::path& radice() const { return radice_; }
  [[nodiscard]] std::filesystem::path archivio() const { return radice_ / "archivion71.dat"; }
  [[nodiscard]] std::filesystem::path guida() const { return radice_ / "guida" / "guida.html"; }
  [[nodiscard]] std::filesystem::path metodi() const { return radice_ / "Metodi"; }
  [[nodiscard]] std::filesystem::path esiti() const { return radice_ / "Esiti.txt"; }
  [[nodiscard]] std::filesystem::path stat() const { return radice_ / "Stat.txt"; }
  [[nodiscard]] std::filesystem::path vincite() const { return radice_ / "Vincite.txt"; }
  [[nodiscard]] std::filesystem::path prevGioco() const { return radice_ / "PrevGioco.txt"; }
  [[nodiscard]] std::filesystem::path vincenti() const { return radice_ / "Vincenti.txt"; }

  /// The file of a method: its name without surrounding blanks, with ".dat" behind it. Failure 52 for a name
  /// that would lead out of the folder of the methods.
  [[nodiscard]] std::filesystem::path metodo(std::string_view nome) const;
  [[nodiscard]] bool esisteMetodo(std::string_view nome) const;

  /// The names of the plain files in the folder of the methods, hidden ones left out, in ascending order of
  /// the upper-cased name. Empty when there is no such folder; failure 75 when it can't be read.
  [[nodiscard]] std::vector<std::string> elencaMetodi() const;

 private:
  std::filesystem::path radice_;
};

}  // namespace vaticlo
