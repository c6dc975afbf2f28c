#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <utility>

#include "platform/failure.h"

namespace vaticlo {

/// An open file of the system, closed at the end of its life.
class Descrittore {
 public:
  /// Opens with the flags of open(2); never waits for the other end of a pipe. Fails with
  /// Errore::FileNonTrovato, AccessoAlFile, PercorsoNonTrovato, or as failureDiSistema() says.
  Descrittore(const std::filesystem::path& percorso, int opzioni)
      : Descrittore(percorso, opzioni, percorso) {}
  /// A failure names `nominato`, the file that the open one stands for.
  Descrittore(const std::filesystem::path& percorso, int opzioni, const std::filesystem::path& nominato);
  Descrittore(Descrittore&& altro) noexcept : fd_(std::exchange(altro.fd_, -1)) {}
  Descrittore& operator=(Descrittore&&) = delete;
  ~Descrittore();

  [[nodiscard]] int fd() const { return fd_; }
  /// Writes all of `dati` at the present place. Fails with Errore::DiscoPieno, DispositivoIO or AccessoAlFile
  /// (a pipe that is full); `percorso` is named in it.
  void scrivi(std::string_view dati, const std::filesystem::path& percorso) const;
  /// Reads from the present place until `dati` is full or the file ends; how many bytes that were.
  /// Fails with Errore::DispositivoIO.
  [[nodiscard]] std::size_t leggi(std::span<std::uint8_t> dati, const std::filesystem::path& percorso) const;
  /// Returns when what was written is on the disk. Fails with Errore::DispositivoIO or DiscoPieno; not where
  /// the file system can't say.
  void sincronizza(const std::filesystem::path& percorso) const;
  /// Closes before the end of its life, to learn of a write that failed late. Fails with
  /// Errore::DispositivoIO or DiscoPieno.
  void chiudi(const std::filesystem::path& percorso);

 private:
  int fd_;
};

/// The failure that stands for `codice`, an errno, on that file.
[[nodiscard]] RuntimeFailure failureDiSistema(int codice, const std::filesystem::path& percorso);

}  // namespace vaticlo
