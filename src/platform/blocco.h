#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

namespace vaticlo {

/// Holds a folder: as long as it lives, no other program that asks holds the same one, so that what is read,
/// changed and written meanwhile is one step. A thread that holds it may hold it again. It keeps nobody from
/// reading, makes no file, and ends with the process however that ends. Ask no person anything while holding
/// it: other programs wait.
class BloccoCartella {
 public:
  /// Waits up to `attesa` for another program to let go; fails with Errore::CartellaOccupata when it does
  /// not, with DispositivoIO when the disk fails. Where the folder may not be read, or its file system does
  /// not offer locks, nothing is held.
  explicit BloccoCartella(const std::filesystem::path& cartella,
                          std::chrono::milliseconds attesa = std::chrono::seconds(5));

  /// Brings the names in the folder to the disk. Fails with Errore::DispositivoIO or DiscoPieno.
  void sincronizza() const;

 private:
  struct Tenuta;

  std::filesystem::path cartella_;
  std::shared_ptr<const Tenuta> tenuta_;
};

}  // namespace vaticlo
