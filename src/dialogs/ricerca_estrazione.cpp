#include "dialogs/ricerca_estrazione.h"

#include "platform/conversione.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

int numeroCercato(const std::string& risposta) {
  try {
    return inIntero16(risposta);
  } catch (RuntimeFailure& failure) {
    failure.spiega({.fatto = "Il numero cercato, " + risposta + ", è troppo grande.",
                    .rimedio = "Cercate un'estrazione con un numero che c'è.",
                    .capitolo = "La ricerca di un'estrazione"});
    throw;
  }
}

}  // namespace

void cercaEstrazione(Programma& programma, BarraScorrimento& VScroll1, SchedaEstrazione& frm,
                     const std::function<void(int)>& mostra) {
  auto& servizi = programma.servizi;
  const auto primo = std::to_string(VScroll1.Min()), ultimo = std::to_string(VScroll1.Max() - 1);
  const auto risposta =
      servizi.chiedi("Inserisci il numero dell'estrazione (compreso tra " + primo + " e " + ultimo +
                         ") da ricercare oppure la data dell'estrazione in uno dei seguenti "
                         "formati:(gg/mm/aaaa oppure gg-mm-aaaa oppure gg.mm.aaaa).",
                     "Cerca Estrazione");

  if (numeroDaTesto(risposta)) {
    const int x = numeroCercato(risposta);
    if (x > 1 && x < VScroll1.Max()) {
      VScroll1.Value(x + 1);
      mostra(x);
    } else {
      servizi.mostra({"Inserisci un valore corretto compreso tra " + primo + " e " + ultimo + ".",
                      "Attenzione", Genere::Rifiuto});
    }
  } else if (const auto data = dataDaTesto(risposta)) {
    const int anno = annoDueCifre(*data);
    clsGestione(programma.cartella, servizi)
        .Trova(frm, giorno(*data), mese(*data), secoloDiRicerca(anno), anno);
  } else if (!risposta.empty()) {
    servizi.mostra({"Inserisci un valore numerico", "Attenzione", Genere::Rifiuto});
  }
}

}  // namespace vaticlo
