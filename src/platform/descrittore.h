#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/failure.h"

namespace vaticlo {

/// What is to be done with a file, and with one that is not there.
enum class Apertura {
  Lettura,        ///< it is read; a folder opens too
  Modifica,       ///< it is read and written
  ModificaOCrea,  ///< the same, and a missing one is created empty
  Nuova,          ///< it is written; there must be none yet, not even a link to one
  DaCapo,         ///< it is written, from an empty one on
};

/// An open file of the system, closed at the end of its life.
class Descrittore {
 public:
  /// Never waits for the other end of a pipe. Fails with Errore::FileNonTrovato, AccessoAlFile,
  /// PercorsoNonTrovato, or as failureDiSistema() says.
  Descrittore(const std::filesystem::path& percorso, Apertura come) : Descrittore(percorso, come, percorso) {}
  /// A failure names `nominato`, the file that the open one stands for.
  Descrittore(const std::filesystem::path& percorso, Apertura come, const std::filesystem::path& nominato);
  Descrittore(Descrittore&& altro) noexcept : aperto_(std::exchange(altro.aperto_, kNessuno)) {}
  Descrittore& operator=(Descrittore&&) = delete;
  ~Descrittore();

  /// What the system calls it.
  [[nodiscard]] std::intptr_t aperto() const { return aperto_; }
  /// Its bytes; nothing for what is no plain file. Fails as failureDiSistema() says.
  [[nodiscard]] std::optional<std::size_t> lunghezza(const std::filesystem::path& percorso) const;
  /// The place that is read or written next. Fails as failureDiSistema() says.
  void vaiA(std::size_t posto, const std::filesystem::path& percorso) const;
  /// Leaves so many bytes of it. Fails as failureDiSistema() says.
  void tagliaA(std::size_t quanti, const std::filesystem::path& percorso) const;
  /// Writes all of `dati` at the present place. Fails with Errore::DiscoPieno, DispositivoIO or AccessoAlFile
  /// (a pipe that is full); `percorso` is named in it.
  void scrivi(std::string_view dati, const std::filesystem::path& percorso) const;
  /// Reads from the present place until `dati` is full or the file ends; how many bytes that were.
  /// Fails with Errore::DispositivoIO.
  [[nodiscard]] std::size_t leggi(std::span<std::uint8_t> dati, const std::filesystem::path& percorso) const;
  /// From now on leggi() waits for what comes through a pipe.
  void attendiLeggendo() const;
  /// Waits until somebody writes into a pipe.
  void attendiChiScrive() const;
  /// Returns when what was written is on the disk. Fails with Errore::DispositivoIO or DiscoPieno; not where
  /// the file system can't say.
  void sincronizza(const std::filesystem::path& percorso) const;
  /// Closes before the end of its life, to learn of a write that failed late. Fails with
  /// Errore::DispositivoIO or DiscoPieno.
  void chiudi(const std::filesystem::path& percorso);

 private:
  static constexpr std::intptr_t kNessuno = -1;

  std::intptr_t aperto_;
};

/// The failure that stands for what the system says of that file.
[[nodiscard]] RuntimeFailure failureDiSistema(std::error_code codice, const std::filesystem::path& percorso);

/// Whether that says that there is no room left.
[[nodiscard]] bool senzaPosto(std::error_code codice);

}  // namespace vaticlo
