#include "archive/clsgestione.h"
#include "console/comandi/comandi.h"
#include "operations/aggiornamento.h"

namespace vaticlo {

namespace {

/// The parameters that say which prediction, followed by the fields of the editor.
std::vector<Parametro> conCampi(std::vector<Parametro> parametri, bool nuova) {
  for (const auto& campo :
       std::vector<Parametro>{{"--estrazione", "Numero dell'estrazione di calcolo", "N", nuova},
                              {"--numero", "Numero 899, es. 899.11.22.33"},
                              {"--ruote", "Ruote di gioco, es. Ba-Ca-Tutte", "TESTO", nuova},
                              {"--colpi", nuova ? "Colpi di gioco (10 se non indicati)" : "Colpi di gioco"},
                              {"--ambate", "Ambate, es. 21;36"},
                              {"--ambi", "Ambi secchi, es. 15-50;25-12;66-10"},
                              {"--sup", "Sorti superiori, es. 15-50-66-71;25-12-10"}})
    parametri.push_back(campo);
  return parametri;
}

/// Where what a command lists goes besides the screen.
std::vector<Parametro> conUscite(std::vector<Parametro> parametri) {
  parametri.push_back({"--csv", "Scrive anche un file CSV (-: standard output al posto del testo)", "FILE"});
  parametri.push_back({.nome = "--json", .aiuto = "Scrive in JSON al posto del testo", .quanti = 0});
  return parametri;
}

}  // namespace

std::vector<Comando> tavolaComandi() {
  using namespace comandi;
  const Parametro n{"N", "Numero dell'estrazione"}, nome{"NOME", "Nome del metodo"};
  const Parametro metodo{"METODO", "Nome del metodo"}, slot{"SLOT", "Numero della previsione nel metodo"};
  const Parametro soloMetodo{"--metodo", "Un solo metodo, invece di tutti", "NOME"};
  const Parametro verso{"VERSO", "Nome del metodo che la riceve"};
  const Parametro dal{"--dal", "Prima estrazione (la 1 se non indicata)", "N"},
      al{"--al", "Ultima estrazione (l'ultima se non indicata)", "N"};
  const Parametro numeri{.nome = "NUMERI",
                         .aiuto = "I 55 numeri: cinque per ruota, da Bari a Nazionale",
                         .quanti = kCampiEstrazione};
  return {
      {.nome = "importa",
       .aiuto = "Crea l'archivio da un file di testo pubblico delle estrazioni",
       .fai = importa,
       .parametri = {{"FILE", "Righe aaaa/mm/gg, ruota e cinque numeri, separati da tabulazioni"}},
       .creaCartella = true,
       .scrive = true},
      {.nome = "estrazione", .aiuto = "Mostra un'estrazione", .fai = estrazione, .parametri = {n}},
      {.nome = "cancella",
       .aiuto = "Cancella un'estrazione",
       .fai = cancella,
       .parametri = {n},
       .scrive = true},
      {.nome = "trova",
       .aiuto = "Cerca un'estrazione per numero o per data",
       .fai = trova,
       .parametri = {{"TESTO", "Numero o data (gg/mm/aaaa, gg-mm-aaaa, gg.mm.aaaa)"}}},
      {.nome = "inserisci",
       .aiuto = "Aggiunge un'estrazione in fondo all'archivio",
       .fai = inserisci,
       .parametri = {{"DATA", "Data dell'estrazione, gg/mm/aaaa"}, numeri},
       .creaCartella = true,
       .scrive = true},
      {.nome = "modifica",
       .aiuto = "Riscrive i numeri di un'estrazione",
       .fai = modifica,
       .parametri = {n, numeri},
       .scrive = true},
      {.nome = "aggiorna",
       .aiuto = "Sostituisce l'archivio con quello di un server",
       .fai = aggiorna,
       .parametri = {{"--da", "Indirizzo da usare al posto di quello del programma", "INDIRIZZO", false,
                      indirizzoArchivio()}},
       .scrive = true},
      {.nome = "somdif",
       .aiuto = "Distanze o somme dei numeri di un'estrazione",
       .fai = somdif,
       .parametri = {n, {"--tipo", "ciclometrica, matematica o somma", "TIPO", false, "ciclometrica"}}},
      {.nome = "metodo", .aiuto = "Crea, rinomina, elimina ed elenca i metodi"},
      {.nome = "metodo crea",
       .aiuto = "Crea un metodo vuoto",
       .fai = creaMetodo,
       .parametri = {nome},
       .creaCartella = true,
       .scrive = true},
      {.nome = "metodo rinomina",
       .aiuto = "Cambia il nome di un metodo",
       .fai = rinominaMetodo,
       .parametri = {nome, {"NUOVO", "Nome nuovo"}},
       .scrive = true},
      {.nome = "metodo elimina",
       .aiuto = "Elimina un metodo con le sue previsioni",
       .fai = eliminaMetodo,
       .parametri = {nome},
       .scrive = true},
      {.nome = "metodo elenco", .aiuto = "Elenca i metodi", .fai = elencoMetodi},
      {.nome = "previsione", .aiuto = "Inserisce, modifica, mostra, elimina e riordina le previsioni"},
      {.nome = "previsione elenco",
       .aiuto = "Elenca le previsioni di un metodo",
       .fai = elencoPrevisioni,
       .parametri = {metodo}},
      {.nome = "previsione mostra",
       .aiuto = "Mostra una previsione",
       .fai = mostraPrevisione,
       .parametri = {metodo, slot}},
      {.nome = "previsione inserisci",
       .aiuto = "Inserisce una previsione",
       .fai = inserisciPrevisione,
       .parametri = conCampi({metodo}, true),
       .scrive = true},
      {.nome = "previsione modifica",
       .aiuto = "Riscrive una previsione",
       .fai = modificaPrevisione,
       .parametri = conCampi({metodo, slot}, false),
       .scrive = true},
      {.nome = "previsione elimina",
       .aiuto = "Elimina una previsione",
       .fai = eliminaPrevisione,
       .parametri = {metodo, slot},
       .scrive = true},
      {.nome = "previsione togli",
       .aiuto = "Toglie una previsione e chiude il vuoto che lascia",
       .fai = togliPrevisione,
       .parametri = {metodo, slot},
       .scrive = true},
      {.nome = "previsione duplica",
       .aiuto = "Copia una previsione in fondo al suo metodo",
       .fai = duplicaPrevisione,
       .parametri = {metodo, slot},
       .scrive = true},
      {.nome = "previsione copia",
       .aiuto = "Copia una previsione in fondo a un altro metodo",
       .fai = copiaPrevisione,
       .parametri = {metodo, slot, verso},
       .scrive = true},
      {.nome = "previsione sposta",
       .aiuto = "Sposta una previsione in fondo a un altro metodo",
       .fai = spostaPrevisione,
       .parametri = {metodo, slot, verso},
       .scrive = true},
      {.nome = "verifica",
       .aiuto = "Verifica le previsioni calcolate su un'estrazione (Esiti.txt)",
       .fai = verifica,
       .parametri = {n, soloMetodo}},
      {.nome = "statistica",
       .aiuto = "Giudica le previsioni di un intervallo di estrazioni (Stat.txt, Vincite.txt, PrevGioco.txt)",
       .fai = statistica,
       .parametri = {{"INIZIO", "Numero della prima estrazione"},
                     {"FINE", "Numero dell'ultima estrazione"},
                     soloMetodo,
                     {"--scelto", "Metodo scelto dalla barra degli strumenti", "K", false, "1"}}},
      {.nome = "in-gioco",
       .aiuto = "Elenca le previsioni ancora in gioco (PrevGioco.txt)",
       .fai = inGioco,
       .parametri = {soloMetodo}},
      {.nome = "vincenti",
       .aiuto = "Elenca le previsioni vincenti alle ultime estrazioni (Vincenti.txt)",
       .fai = vincenti,
       .parametri = {soloMetodo,
                     {"--ultime", "Quante ultime estrazioni considerare, da 1 a 5", "K", false, "1"}}},
      {.nome = "quadro",
       .aiuto = "Confronta i metodi, una riga per metodo",
       .fai = quadro,
       .parametri = conUscite({dal, al, soloMetodo})},
      {.nome = "caso",
       .aiuto = "Confronta i metodi con il puro caso",
       .fai = caso,
       .parametri =
           conUscite({{"INIZIO", "Prima estrazione di calcolo"},
                      {"FINE", "Ultima estrazione di calcolo"},
                      soloMetodo,
                      {"--prove", "Quante prove simulare", "K", false, "1000"},
                      {"--seme", "Seme delle prove: lo stesso dà le stesse prove", "S", false, "1"}})},
      {.nome = "ritardi",
       .aiuto = "Frequenze e ritardi dei numeri di una ruota",
       .fai = ritardi,
       .parametri = conUscite({{"RUOTA", "Sigla della ruota, o Tutte"},
                               {.nome = "--ambi", .aiuto = "Gli ambi al posto dei numeri", .quanti = 0},
                               dal,
                               al})},
      {.nome = "dimostrazione",
       .aiuto = "Riempie una cartella vuota con estrazioni e previsioni inventate",
       .fai = dimostrazione,
       .creaCartella = true,
       .scrive = true},
      {.nome = "esegui",
       .aiuto = "Esegue i comandi di un file di testo, uno per riga",
       .fai = esegui,
       .parametri = {{"FILE", "File dei comandi (-: standard input)"}},
       .creaCartella = true,  // each of its lines is asked for itself
       .soloDalTerminale = true},
  };
}

}  // namespace vaticlo
