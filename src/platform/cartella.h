#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/percorso.h"

namespace vaticlo {

/// The program folder: where the archive, the methods and the report files lie, whatever the current folder
/// is.
class CartellaProgramma {
 public:
  explicit CartellaProgramma(std::filesystem::path radice) : radice_(std::move(radice)) {}

  [[nodiscard]] const std::filesystem::path& radice() const { return radice_; }
  [[nodiscard]] std::filesystem::path file(std::string_view nome) const { return radice_ / percorsoDa(nome); }

 private:
  std::filesystem::path radice_;
};

/// The names of the plain files of a folder, hidden ones left out, in ascending order of the upper-cased
/// name. Empty when there is no such folder; fails with Errore::AccessoAlFile when it can't be read.
[[nodiscard]] std::vector<std::string> elencaFile(const std::filesystem::path& cartella);

}  // namespace vaticlo
