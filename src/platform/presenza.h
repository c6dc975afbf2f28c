#pragma once

#include <filesystem>
#include <memory>

namespace vaticlo {

/// Lets the programs that work on a folder know of each other: as long as one of these lives, the others see
/// that it is there. It hinders nobody, BloccoCartella neither, makes no file, and ends with the process
/// however that ends.
class Presenza {
 public:
  explicit Presenza(const std::filesystem::path& cartella);
  Presenza(const Presenza&) = delete;
  Presenza& operator=(const Presenza&) = delete;
  ~Presenza();

  /// Whether there is another one on the same folder. False too where it can't be known: the folder can't be
  /// opened, or its file system has no such locks.
  [[nodiscard]] bool altre() const;

 private:
  struct Segno;

  std::unique_ptr<const Segno> segno_;
};

}  // namespace vaticlo
