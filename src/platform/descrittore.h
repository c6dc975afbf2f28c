#pragma once

#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/failure.h"

namespace vaticlo {

/// An open file of the system, closed at the end of its life.
class Descrittore {
 public:
  /// Opens with the flags of open(2); never waits for the other end of a pipe. Failure 53, 75 or 76.
  Descrittore(const std::filesystem::path& percorso, int opzioni);
  Descrittore(Descrittore&& altro) noexcept : fd_(std::exchange(altro.fd_, -1)) {}
  Descrittore& operator=(Descrittore&&) = delete;
  ~Descrittore();

  [[nodiscard]] int fd() const { return fd_; }
  /// Writes all of `dati` at the present place. Failure 61 (no room) or 57; `percorso` is named in it.
  void scrivi(std::string_view dati, const std::filesystem::path& percorso) const;

 private:
  int fd_;
};

/// The failure that tells of `codice`, an errno, on that file.
[[nodiscard]] RuntimeFailure failureDiSistema(int codice, const std::filesystem::path& percorso);

}  // namespace vaticlo
