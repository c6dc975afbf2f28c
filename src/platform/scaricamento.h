#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/scaricato.h"

namespace vaticlo {

/// How far a download is waited for. What goes beyond one of these is a failure.
struct LimitiScaricamento {
  std::size_t ottetti = std::size_t{64} << 20;  ///< far more than any archive
  std::chrono::seconds collegamento{20};        ///< until the server is reached
  std::chrono::seconds silenzio{30};            ///< with next to nothing arriving
  std::chrono::seconds tutto{std::chrono::minutes{5}};
  std::function<bool()> interrotto = {};      ///< asked several times a second; true gives up
  std::function<void(int)> avanzamento = {};  ///< told the percent, where the server says how much it sends
  std::filesystem::path certificati = {};     ///< a file of those to trust instead of the system's
};

/// Fetches `indirizzo` (http or https, a few redirections followed) into memory. With `seModificatoDopo`
/// (seconds since 1970) only if it has changed since. Fallito when the server can't be reached, its last
/// status is none of the 2xx that carry a whole file, less arrives than it announced, or a limit is passed.
[[nodiscard]] Scaricato scaricaInMemoria(const std::string& indirizzo, std::int64_t seModificatoDopo = 0,
                                         const LimitiScaricamento& limiti = {});

/// The same, and then writes `destinazione` whole, in one step. False when that or the download fails; the
/// destination is then as it was.
[[nodiscard]] bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione,
                                 const LimitiScaricamento& limiti = {});

}  // namespace vaticlo
