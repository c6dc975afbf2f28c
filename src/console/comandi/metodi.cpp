#include <iostream>

#include "console/comandi/comandi.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "methods/catalogo.h"
#include "operations/gestione_metodi.h"
#include "platform/testo.h"

namespace vaticlo::comandi {

Esito creaMetodo(Sessione& sessione, const Argomenti& argomenti) {
  if (GestioneMetodi(sessione.programma()).crea(argomenti["NOME"]))
    std::cout << "Creato il metodo " << senzaBlanchi(argomenti["NOME"]) << '\n';
  return kFatto;
}

Esito rinominaMetodo(Sessione& sessione, const Argomenti& argomenti) {
  if (GestioneMetodi(sessione.programma()).rinomina(argomenti["NOME"], argomenti["NUOVO"]))
    std::cout << "Rinominato il metodo " << argomenti["NOME"] << " in " << senzaBlanchi(argomenti["NUOVO"])
              << '\n';
  return kFatto;
}

Esito eliminaMetodo(Sessione& sessione, const Argomenti& argomenti) {
  if (GestioneMetodi(sessione.programma()).elimina(argomenti["NOME"]))
    std::cout << "Eliminato il metodo " << argomenti["NOME"] << '\n';
  return kFatto;
}

Esito elencoMetodi(Sessione& sessione, const Argomenti& argomenti) {
  const auto nomi = CaricaElencoMetodi(sessione.programma().cartella, {});
  Tabella tabella{{{"Metodo"}}, {}};
  for (const auto& nome : nomi) tabella.righe.push_back({nome});
  stampa({.oggetto = {{"metodi", nomi}},
          .tabella = tabella,
          .testo =
              [&] {
                for (const auto& nome : nomi) std::cout << nome << '\n';
              }},
         argomenti);
  return kFatto;
}

}  // namespace vaticlo::comandi
