#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/blocco.h"
#include "platform/descrittore.h"

namespace vaticlo {

/// A new file beside the one whose place it is to take, under that name with "." in front and ".nuovo" at the
/// end; gone at the end of its life unless it took the place. Whoever makes one holds the folder, so a file
/// that is there already is what a killed program left.
class FileAccanto {
 public:
  /// Creates it empty. Fails as Descrittore does, naming the destination.
  explicit FileAccanto(const std::filesystem::path& destinazione);
  [[nodiscard]] static std::filesystem::path nomeAccanto(const std::filesystem::path& destinazione);
  FileAccanto(FileAccanto&&) = delete;
  FileAccanto& operator=(FileAccanto&&) = delete;
  ~FileAccanto();

  /// Gives it the permissions and, where the system allows it, the owner of that file: to be done before
  /// there is anything to read in it.
  void prendiPermessi(const Descrittore& vecchio) const;
  void scrivi(std::string_view dati) const { file_.scrivi(dati, destinazione_); }
  /// Brings it to the disk and closes it. Fails with Errore::DispositivoIO or DiscoPieno.
  void finisci();

  /// Takes the place of a file that is there, open as `vecchio`, or a free one, and brings the folder to the
  /// disk. False when the file that is there can't be moved away. After a failure of the disk the old file is
  /// back, where the file system can exchange two files. `vecchio` is closed where an open file keeps its
  /// place.
  [[nodiscard]] bool prendiIlPosto(std::optional<Descrittore>& vecchio, const BloccoCartella& cartella) const;
  /// The same where there must be no file: fails with Errore::FileEsistente when there is one.
  void prendiPostoLibero() const;

 private:
  std::filesystem::path percorso_, destinazione_;
  Descrittore file_;
};

}  // namespace vaticlo
