#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

#include "console/sessione.h"
#include "platform/failure.h"

int main(int argc, char* argv[]) {
  // A limit on the size of files shows as a write that fails, not as the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    vaticlo::Sessione sessione;
    sessione.aTerminale = ::isatty(STDOUT_FILENO) != 0;
    return sessione.esegui(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& eccezione) {
    const vaticlo::RuntimeFailure failure(vaticlo::Errore::ErroreInterno, eccezione.what());
    std::cerr << "Errore di run-time " << failure.numero() << ": " << failure.what() << '\n';
  }
  return vaticlo::kErrore;
}
