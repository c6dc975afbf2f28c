#include <exception>
#include <iostream>

#include "console/sessione.h"
#include "platform/failure.h"
#include "platform/processo.h"

int main(int argc, char* argv[]) {
  try {
    const vaticlo::Processo processo(argc, argv);
    vaticlo::Sessione sessione;
    sessione.aTerminale = vaticlo::uscitaSulTerminale();
    return sessione.esegui(processo.parole());
  } catch (const std::exception& eccezione) {
    const vaticlo::RuntimeFailure failure(vaticlo::Errore::ErroreInterno, eccezione.what());
    std::cerr << "Errore di run-time " << failure.numero() << ": " << failure.what() << '\n';
  }
  return vaticlo::kErrore;
}
