#include "operations/aggiornamento.h"

#include "archive/archivio.h"
#include "operations/copie.h"

namespace vaticlo {

std::string indirizzoArchivio() { return VATICLO_SERVER_ARCHIVIO; }

bool aggiornaArchivio(Programma& programma, const std::string& indirizzo) {
  faiCopia(programma, GenereCopia::Archivio);
  const bool riuscito = programma.servizi.scarica(indirizzo, programma.cartella.file(kFileArchivio));
  if (riuscito)
    programma.servizi.mostra({"Aggiornamento avvenuto"});
  else
    programma.servizi.mostra(
        {.testo = "Errore: Non è possibile effettuare l'aggiornamento", .genere = Genere::Rifiuto});
  return riuscito;
}

}  // namespace vaticlo
