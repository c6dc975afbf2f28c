#include <iostream>

#include "console/comandi/comandi.h"
#include "console/manuale.h"
#include "platform/testo.h"

namespace vaticlo::comandi {

Esito manuale(Sessione& /*sessione*/, const Argomenti& /*argomenti*/) {
  std::cout << paginaDiManuale(tavolaComandi());
  return kFatto;
}

Esito completamento(Sessione& /*sessione*/, const Argomenti& argomenti) {
  const auto testo = vaticlo::completamento(argomenti["GUSCIO"], tavolaComandi());
  if (testo.empty())
    throw UsoErrato("GUSCIO deve essere bash, zsh o fish, non " + citazione(argomenti["GUSCIO"]));
  std::cout << testo;
  return kFatto;
}

}  // namespace vaticlo::comandi
