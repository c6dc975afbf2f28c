#include <csignal>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "console/sessione.h"
#include "platform/failure.h"

int main(int argc, char* argv[]) {
  // A limit on the size of files shows as a write that fails, not as the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return vaticlo::Sessione().esegui(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& eccezione) {
    const vaticlo::RuntimeFailure failure(vaticlo::Errore::ErroreInterno, eccezione.what());
    std::cerr << "Errore di run-time " << failure.numero() << ": " << failure.what() << '\n';
  }
  return vaticlo::kErrore;
}
