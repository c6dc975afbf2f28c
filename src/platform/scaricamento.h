#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace vaticlo {

/// How far a download is waited for. What goes beyond one of these is a failure.
struct LimitiScaricamento {
  std::size_t ottetti = std::size_t{64} << 20;  ///< no archive is anywhere near it
  std::chrono::seconds collegamento{20};        ///< until the server is reached
  std::chrono::seconds silenzio{30};            ///< with next to nothing arriving
  std::chrono::seconds tutto{std::chrono::minutes{5}};
  std::function<bool()> interrotto = {};  ///< asked several times a second; true gives up
};

/// Fetches `indirizzo` (http or https, a few redirections followed) into memory and then writes
/// `destinazione` whole, in one step. False when the server can't be reached, its last status is none of the
/// 2xx that carry a whole file, less arrives than it announced, a limit is passed, or the file can't be
/// written; the destination is then as it was.
[[nodiscard]] bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione,
                                 const LimitiScaricamento& limiti = {});

}  // namespace vaticlo
