#include "operations/aggiornamento.h"

namespace vaticlo {

std::string indirizzoArchivio() { return VATICLO_SERVER_ARCHIVIO; }

bool aggiornaArchivio(Programma& programma, const std::string& indirizzo) {
  const bool riuscito = programma.servizi.scarica(indirizzo, programma.cartella.archivio());
  programma.servizi.mostra(
      {riuscito ? "Aggiornamento avvenuto" : "Errore: Non è possibile effettuare l'aggiornamento"});
  return riuscito;
}

}  // namespace vaticlo
