#include <iostream>
#include <optional>
#include <utility>

#include "archive/importazione.h"
#include "console/comandi/comandi.h"
#include "console/sessione.h"
#include "console/uscita_tabella.h"
#include "operations/aggiornamento.h"
#include "operations/aggiungi_estrazioni.h"
#include "operations/copie.h"
#include "operations/dimostrazione.h"
#include "operations/importa_estrazioni.h"
#include "platform/blocco.h"
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
  sostituisciArchivio(sessione.programma(), archivio);
  std::cout << "Importate " << riassunto(archivio) << '\n';
  return kFatto;
}

Esito aggiorna(Sessione& sessione, const Argomenti& argomenti) {
  aggiornaArchivio(sessione.programma(), argomenti["--da"]);
  return kFatto;
}

Esito aggiungi(Sessione& sessione, const Argomenti& argomenti) {
  auto& programma = sessione.programma();
  const auto file = argomenti.seDato("FILE"), indirizzo = argomenti.seDato("--da");
  if (file && indirizzo) throw UsoErrato("un FILE o --da un indirizzo, non tutti e due");
  auto testo = file ? std::optional(leggi(*file))
                    : estrazioniDaInternet(programma, indirizzo.value_or(indirizzoStorico()));
  if (!testo) return kRifiutato;
  const BloccoCartella blocco(programma.cartella.radice());
  auto aggiunta = AggiuntaEstrazioni::prepara(programma, std::move(*testo));
  if (!aggiunta) return kRifiutato;
  const auto& anteprima = aggiunta->anteprima();
  for (const auto& avvertenza : anteprima.avvertenze) programma.servizi.segnala(avvertenza);
  if (!anteprima.differenze.empty() && !argomenti.seDato("--accetta-differenze")) {
    for (const auto& differenza : anteprima.differenze) std::cout << inParole(differenza) << '\n';
    programma.servizi.segnala(
        "Il testo e l'archivio non dicono le stesse cose: non è stato aggiunto nulla. Con "
        "--accetta-differenze "
        "si aggiungono le estrazioni nuove, e quelle dell'archivio restano come sono.");
    return kRifiutato;
  }
  if (anteprima.nuove() == 0) {
    std::cout << "Nessuna estrazione nuova\n";
    return kFatto;
  }
  if (!aggiunta->scrivi()) return kRifiutato;
  std::cout << "Aggiunte " << riassunto(anteprima) << '\n';
  return kFatto;
}

Esito elencaCopie(Sessione& sessione, const Argomenti& argomenti) {
  const auto copie = elencoCopie(sessione.programma().cartella);
  stampa(tabellaDelle(copie), argomenti, [&] {
    for (const auto& copia : copie) std::cout << copia.nome << ": " << contenuto(copia) << '\n';
    if (copie.empty()) std::cout << "Non ci sono copie\n";
  });
  return kFatto;
}

Esito ripristina(Sessione& sessione, const Argomenti& argomenti) {
  const auto& nome = argomenti["NOME"];
  if (ripristinaCopia(sessione.programma(), nome)) std::cout << "Ripristinata la copia " << nome << '\n';
  return kFatto;
}

Esito dimostrazione(Sessione& sessione, const Argomenti& /*argomenti*/) {
  creaDimostrazione(sessione.programma(), std::cout);
  return kFatto;
}

}  // namespace vaticlo::comandi
