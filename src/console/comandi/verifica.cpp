#include <iostream>

#include "check/clsmetodo.h"
#include "console/comandi/avvisi.h"
#include "console/comandi/comandi.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "platform/rapporto.h"

namespace vaticlo::comandi {

Esito verifica(Sessione& sessione, const Argomenti& argomenti) {
  const int n = argomenti.intero("N");
  const auto metodo = argomenti.seDato("--metodo");
  auto& programma = sessione.programma();
  auto& g = programma.globals;
  g.UltimaEstrazione = ApriArchivio(programma.cartella).PrimoIndiceLibero() - 1;
  g.EstrazioneCorrente = g.EstrazioneBase = n;
  avvisaDeiMetodi(programma, metodo);
  eseguiVerifica(programma, {{!metodo, metodo.value_or("")}, std::to_string(n)});
  const auto rapporto = testoRapporto(programma.cartella.file(kFileEsiti));
  stampa({.oggetto = {{"estrazione", n},
                      {"giocabili", g.ContaGiocabili},
                      {"vincenti", g.ContaVincenti},
                      {"inGioco", g.ContaInGioco},
                      {"rapporto", rapporto}},
          .testo =
              [&] {
                std::cout << rapporto << "Giocabili: " << g.ContaGiocabili << '\n'
                          << "Vincenti: " << g.ContaVincenti << '\n'
                          << "In gioco: " << g.ContaInGioco << '\n';
              }},
         argomenti);
  return esitoDeiRapporti(programma);
}

}  // namespace vaticlo::comandi
