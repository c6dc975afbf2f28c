#include "program/rapporti.h"

namespace vaticlo {

void concludi(FileRapporto& rapporto, Programma& programma) {
  if (rapporto.concludi()) return;
  programma.globals.RapportiInteri = false;
  programma.servizi.segnala("Il rapporto " + rapporto.nome() +
                            " non è intero: il disco non ha accettato tutte le sue righe.");
}

}  // namespace vaticlo
