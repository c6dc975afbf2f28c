#include <iostream>
#include <stop_token>

#include "analysis/tabelle.h"
#include "archive/ruota.h"
#include "console/barra.h"
#include "console/comandi/avvisi.h"
#include "console/comandi/comandi.h"
#include "console/ctrl_c.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "platform/conversione.h"
#include "platform/testo.h"

namespace vaticlo::comandi {

namespace {

/// The methods to look at; nothing, after a message, when the one named is not there.
std::optional<std::vector<std::string>> metodiScelti(Sessione& sessione, const Argomenti& argomenti) {
  const auto& cartella = sessione.programma().cartella;
  if (const auto nome = argomenti.seDato("--metodo")) {
    if (esisteMetodo(cartella, *nome)) return {{*nome}};
    sessione.servizi.mostra(
        {"Non esiste il file del metodo selezionato!", "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
    return std::nullopt;
  }
  return metodiDaGiudicare(cartella, {});
}

/// The draws from --dal to --al, by default all of them.
IntervalloEstrazioni intervallo(const Argomenti& argomenti, const ArchivioEstrazioni& archivio) {
  IntervalloEstrazioni scelto{1, archivio.PrimoIndiceLibero() - 1};
  if (argomenti.seDato("--dal")) scelto.dal = argomenti.intero("--dal");
  if (argomenti.seDato("--al")) scelto.al = argomenti.intero("--al");
  return scelto;
}

std::string quota(double percento) { return testoDiNumero(arrotonda(percento, 1)) + "%"; }

void stampaConfronto(const Confronto& uno) {
  std::cout << "Metodo: " << uno.nome << "\nPrevisioni concluse: " << uno.concluse
            << "\nVincenti: " << uno.vincenti << " (" << quota(uno.quotaVincenti())
            << ")\nAttese dal caso: " << testoDiNumero(arrotonda(uno.attese, 2)) << " ("
            << quota(uno.quotaAttese()) << ")\nProve con almeno " << uno.vincenti
            << " vincenti: " << uno.almeno << " su " << uno.prove
            << "\nProbabilità di fare almeno così per caso: " << quota(100 * uno.probabilitaAlmeno()) << '\n';
  if (uno.nonGiudicabili > 0) std::cout << "Non giudicabili: " << uno.nonGiudicabili << '\n';
  std::cout << '\n';
}

OpzioniProve opzioniProve(const Argomenti& argomenti) {
  OpzioniProve opzioni;
  opzioni.prove = argomenti.intero("--prove");
  if (opzioni.prove < 1 || opzioni.prove > kProveAlMassimo)
    throw UsoErrato("--prove deve essere tra 1 e " + std::to_string(kProveAlMassimo) + ", non " +
                    argomenti["--prove"]);
  const int seme = argomenti.intero("--seme");
  if (seme < 0) throw UsoErrato("--seme non può essere negativo: " + argomenti["--seme"]);
  opzioni.seme = static_cast<std::uint64_t>(seme);
  return opzioni;
}

int codiceRuota(const std::string& testo) {
  for (int codice = 1; codice <= kTutte; ++codice)
    if (maiuscolo(SiglaRuotaTutte(codice)) == maiuscolo(senzaBlanchi(testo))) return codice;
  std::string sigle;
  for (int codice = 1; codice <= kTutte; ++codice) sigle.append(" ").append(SiglaRuotaTutte(codice));
  throw UsoErrato("ruota sconosciuta: \"" + citazione(testo) + "\"; le ruote:" + sigle);
}

}  // namespace

Esito quadro(Sessione& sessione, const Argomenti& argomenti) {
  const auto elenco = metodiScelti(sessione, argomenti);
  if (!elenco) return kRifiutato;
  const auto archivio = ApriArchivio(sessione.programma().cartella);
  const auto scelto = intervallo(argomenti, archivio);
  const auto metodi = giudicaMetodi(sessione.programma().cartella, archivio, *elenco, scelto);
  const auto tabella = tabellaDel(quadroDei(metodi, archivio));
  stampa({.oggetto = {{"inizio", scelto.dal}, {"fine", scelto.al}, {"metodi", righe(tabella)}},
          .tabella = tabella},
         argomenti);
  return kFatto;
}

Esito caso(Sessione& sessione, const Argomenti& argomenti) {
  const IntervalloEstrazioni scelto{argomenti.intero("INIZIO"), argomenti.intero("FINE")};
  if (scelto.dal > scelto.al) throw UsoErrato("INIZIO viene dopo FINE");
  const auto opzioni = opzioniProve(argomenti);
  const auto elenco = metodiScelti(sessione, argomenti);
  if (!elenco) return kRifiutato;
  avvisaDeiMetodi(sessione.programma(), argomenti.seDato("--metodo"));
  const auto archivio = ApriArchivio(sessione.programma().cartella);
  const auto metodi = giudicaMetodi(sessione.programma().cartella, archivio, *elenco, scelto);

  const CtrlC ctrlC;
  BarraSuTerminale barra;
  std::stop_source fermata;
  const auto confronti = confrontaColCaso(metodi, archivio, opzioni, fermata.get_token(), [&](int fatte) {
    barra.mostra(fatte, opzioni.prove);
    if (CtrlC::premuto()) fermata.request_stop();
  });
  barra.togli();
  if (confronti.empty()) std::cerr << "Nessuna previsione conclusa in queste estrazioni.\n";
  const auto tabella = tabellaDei(confronti);
  stampa({.oggetto = {{"inizio", scelto.dal},
                      {"fine", scelto.al},
                      {"seme", opzioni.seme},
                      {"confronti", righe(tabella)}},
          .tabella = tabella,
          .testo =
              [&] {
                for (const auto& uno : confronti) stampaConfronto(uno);
              }},
         argomenti);
  return fermata.stop_requested() ? kInterrotto : kFatto;
}

Esito ritardi(Sessione& sessione, const Argomenti& argomenti) {
  const int ruota = codiceRuota(argomenti["RUOTA"]);
  const auto sorte = argomenti.seDato("--ambi") ? Sorte::Ambi : Sorte::Numeri;
  const auto archivio = ApriArchivio(sessione.programma().cartella);
  const auto scelto = intervallo(argomenti, archivio);
  const auto tabella = tabellaDei(ritardiDi(archivio, ruota, sorte, scelto), sorte);
  stampa({.oggetto = {{"ruota", SiglaRuotaTutte(ruota)},
                      {"inizio", scelto.dal},
                      {"fine", scelto.al},
                      {sorte == Sorte::Ambi ? "ambi" : "numeri", righe(tabella)}},
          .tabella = tabella},
         argomenti);
  return kFatto;
}

}  // namespace vaticlo::comandi
