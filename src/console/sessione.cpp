#include "console/sessione.h"

#include <filesystem>
#include <iostream>
#include <optional>

#include "console/riga_di_comando.h"
#include "methods/cartella_metodi.h"
#include "platform/failure.h"
#include "platform/percorso.h"
#include "platform/processo.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

// The status of a command whose own text may not have reached the standard output. What was stored is
// no error: somebody who reads of one would store it a second time.
Esito dopoLaStampa(const Comando& comando, Esito esito) {
  std::cout.flush();
  if (std::cout) return esito;
  std::cout.clear();  // each command of a file answers for its own text alone
  if (comando.scrive && esito == kFatto) {
    std::cerr << "Fatto, ma lo standard output non accetta il testo che lo dice.\n";
    return esito;
  }
  std::cerr << "Errore di run-time 61: lo standard output non accetta altro testo\n";
  return kErrore;
}

}  // namespace

Programma& Sessione::programma() {
  if (!programma_) {
    programma_.emplace(cartella_ ? percorsoDa(*cartella_) : cartellaEseguibile(), servizi);
    // A folder that can't be made shows itself in the first file that is opened in it.
    std::error_code ignorato;
    fs::create_directories(cartellaMetodi(programma_->cartella), ignorato);
  }
  return *programma_;
}

void Sessione::controllaCartella(const Comando& comando) const {
  if (!cartella_) return;
  if (cartella_->empty()) throw UsoErrato("--cartella è vuota: va indicata la cartella del programma");
  std::error_code ignorato;
  if (!comando.creaCartella && !fs::is_directory(percorsoDa(*cartella_), ignorato))
    throw UsoErrato("la cartella \"" + *cartella_ +
                    "\" non esiste; la creano importa, aggiungi, inserisci, metodo crea e dimostrazione");
}

Esito Sessione::esegui(const std::vector<std::string>& parole) {
  RigaDiComando righe(RigaDiComando::Luogo::Terminale);
  return esegui(righe, parole, "");
}

Esito Sessione::esegui(RigaDiComando& righe, const std::vector<std::string>& parole,
                       const std::string& davanti) {
  servizi.dimentica();
  try {
    const auto ordine = righe.leggi(parole);
    if (ordine.comando == nullptr) {
      std::cout << ordine.testo;
      return dopoLaStampa({}, kFatto);
    }
    if (ordine.cartella) cartella_ = ordine.cartella;
    controllaCartella(*ordine.comando);
    // Who stops reading may end what only reads ("| head"), but not what is about to say that it has stored.
    std::optional<PipeSenzaSegnale> senzaSegnale;
    if (ordine.comando->scrive) senzaSegnale.emplace();
    const auto esito = ordine.comando->fai(*this, ordine.argomenti);
    return dopoLaStampa(*ordine.comando, esito == kFatto && servizi.rifiutato() ? kRifiutato : esito);
  } catch (const UsoErrato& errore) {
    std::cerr << davanti << errore.what() << '\n';
    return kUsoErrato;
  } catch (const RuntimeFailure& failure) {
    std::cout.flush();
    std::cerr << "Errore di run-time " << failure.numero() << ": " << failure.what() << '\n';
    return kErrore;
  }
}

}  // namespace vaticlo
