#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vaticlo {

/// The process as main() finds it. As long as it lives, the standard streams carry bytes as they are (UTF-8
/// on a terminal), and a limit on the size of files shows as a write that fails, not as the end of the
/// process.
class Processo {
 public:
  Processo(int argc, char* argv[]);
  Processo(const Processo&) = delete;
  Processo& operator=(const Processo&) = delete;
  ~Processo();

  /// The words of the command line (UTF-8) behind the name of the program.
  [[nodiscard]] const std::vector<std::string>& parole() const { return parole_; }

 private:
  std::vector<std::string> parole_;
  [[maybe_unused]] unsigned pagina_ = 0;  // of the terminal, where it is to be given back
};

/// While it lives, writing into a pipe that nobody reads any more shows as a write that fails, not as the end
/// of the process.
class PipeSenzaSegnale {
 public:
  PipeSenzaSegnale();
  PipeSenzaSegnale(const PipeSenzaSegnale&) = delete;
  PipeSenzaSegnale& operator=(const PipeSenzaSegnale&) = delete;
  ~PipeSenzaSegnale();

 private:
  [[maybe_unused]] void (*prima_)(int) = nullptr;
};

/// Where the program itself lies.
[[nodiscard]] std::filesystem::path cartellaEseguibile();

/// Whether a person reads the standard output, the standard error.
[[nodiscard]] bool uscitaSulTerminale();
[[nodiscard]] bool erroriSulTerminale();

}  // namespace vaticlo
