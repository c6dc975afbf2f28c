#include <iostream>
#include <optional>
#include <utility>

#include "archive/importazione.h"
#include "console/comandi/comandi.h"
#include "console/passo_muto.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "operations/aggiornamento.h"
#include "operations/aggiungi_estrazioni.h"
#include "operations/copie.h"
#include "operations/dimostrazione.h"
#include "operations/importa_estrazioni.h"
#include "platform/failure.h"

namespace vaticlo::comandi {

namespace {

ArchivioEstrazioni leggi(const std::string& file) {
  try {
    return leggiEstrazioni(percorsoDa(file));
  } catch (const ErroreImportazione& errore) {
    throw UsoErrato(file + ", " + errore.what() + "\nL'archivio è rimasto com'era.");
  } catch (const RuntimeFailure& failure) {
    throw UsoErrato("non si può leggere \"" + file + "\": " + descrizione(failure.errore()));
  }
}

/// What became of the draws of a text. Refused: the text contradicts the archive, and nobody has said that
/// they may come all the same.
void racconta(const Aggiunta& anteprima, bool rifiutata, const Argomenti& argomenti) {
  const int aggiunte = rifiutata ? 0 : anteprima.nuove();
  const auto data = [&](int n) { return aggiunte > 0 ? Json(anteprima.archivio.DataEstrazione(n)) : Json(); };
  stampa({.oggetto = {{"aggiunte", aggiunte},
                      {"dal", data(anteprima.dal)},
                      {"al", data(anteprima.al)},
                      {"differenze", righe(tabellaDelle(anteprima.differenze))},
                      {"avvertenze", anteprima.avvertenze}},
          .testo =
              [&] {
                if (rifiutata)
                  for (const auto& diversa : anteprima.differenze) std::cout << inParole(diversa) << '\n';
                else if (aggiunte == 0)
                  std::cout << "Nessuna estrazione nuova\n";
                else
                  std::cout << "Aggiunte " << riassunto(anteprima) << '\n';
              }},
         argomenti);
}

}  // namespace

Esito importa(Sessione& sessione, const Argomenti& argomenti) {
  const auto archivio = leggi(argomenti["FILE"]);
  sostituisciArchivio(sessione.programma(), archivio);
  const int ultima = archivio.PrimoIndiceLibero() - 1;
  stampa({.oggetto = {{"estrazioni", ultima},
                      {"dal", archivio.DataEstrazione(1)},
                      {"al", archivio.DataEstrazione(ultima)}},
          .testo = [&] { std::cout << "Importate " << riassunto(archivio) << '\n'; }},
         argomenti);
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
  const PassoMuto passo(programma.cartella);
  auto aggiunta = AggiuntaEstrazioni::prepara(programma, std::move(*testo));
  if (!aggiunta) return kRifiutato;
  const auto& anteprima = aggiunta->anteprima();
  for (const auto& avvertenza : anteprima.avvertenze) programma.servizi.segnala(avvertenza);
  if (!anteprima.differenze.empty() && !argomenti.seDato("--accetta-differenze")) {
    racconta(anteprima, true, argomenti);
    programma.servizi.segnala(
        "Il testo e l'archivio non dicono le stesse cose: non è stato aggiunto nulla. Con "
        "--accetta-differenze "
        "si aggiungono le estrazioni nuove, e quelle dell'archivio restano come sono.");
    return kRifiutato;
  }
  if (anteprima.nuove() > 0 && !aggiunta->scrivi()) return kRifiutato;
  racconta(anteprima, false, argomenti);
  return kFatto;
}

Esito elencaCopie(Sessione& sessione, const Argomenti& argomenti) {
  const auto copie = elencoCopie(sessione.programma().cartella);
  const auto tabella = tabellaDelle(copie);
  stampa({.oggetto = {{"copie", righe(tabella)}},
          .tabella = tabella,
          .testo =
              [&] {
                for (const auto& copia : copie) std::cout << copia.nome << ": " << contenuto(copia) << '\n';
                if (copie.empty()) std::cout << "Non ci sono copie\n";
              }},
         argomenti);
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
