#include "platform/processo.h"

#include <csignal>

#include <unistd.h>

namespace vaticlo {

Processo::Processo(int argc, char* argv[]) : parole_(argv + (argc > 0 ? 1 : 0), argv + argc) {
  std::signal(SIGXFSZ, SIG_IGN);
}

Processo::~Processo() = default;

PipeSenzaSegnale::PipeSenzaSegnale() : prima_(std::signal(SIGPIPE, SIG_IGN)) {}

PipeSenzaSegnale::~PipeSenzaSegnale() { std::signal(SIGPIPE, prima_); }

std::filesystem::path cartellaEseguibile() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

bool uscitaSulTerminale() { return ::isatty(STDOUT_FILENO) != 0; }

bool erroriSulTerminale() { return ::isatty(STDERR_FILENO) != 0; }

}  // namespace vaticlo
