#include <iostream>

#include "archive/importazione.h"
#include "console/comandi/comandi.h"
#include "console/sessione.h"
#include "operations/aggiornamento.h"
#include "operations/dimostrazione.h"
#include "operations/importa_estrazioni.h"
#include "platform/failure.h"

namespace vaticlo::comandi {

namespace {

ArchivioEstrazioni leggi(const std::string& file) {
  try {
    return leggiEstrazioni(file);
  } catch (const ErroreImportazione& errore) {
    throw UsoErrato(file + ", " + errore.what() + "\nL'archivio è rimasto com'era.");
  } catch (const RuntimeFailure& failure) {
    throw UsoErrato("non si può leggere \"" + file + "\": " + descrizione(failure.errore()));
  }
}

}  // namespace

Esito importa(Sessione& sessione, const Argomenti& argomenti) {
  const auto archivio = leggi(argomenti["FILE"]);
  ScriviArchivio(sessione.programma().cartella, archivio);
  std::cout << "Importate " << riassunto(archivio) << '\n';
  return kFatto;
}

Esito aggiorna(Sessione& sessione, const Argomenti& argomenti) {
  aggiornaArchivio(sessione.programma(), argomenti["--da"]);
  return kFatto;
}

Esito dimostrazione(Sessione& sessione, const Argomenti& /*argomenti*/) {
  creaDimostrazione(sessione.programma(), std::cout);
  return kFatto;
}

}  // namespace vaticlo::comandi
