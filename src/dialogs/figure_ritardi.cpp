#include "dialogs/figure_ritardi.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "analysis/tabelle.h"
#include "archive/ruota.h"
#include "dialogs/quanti.h"
#include "platform/conversione.h"

namespace vaticlo {

namespace {

constexpr std::size_t kBarre = kNumeri;  // of a picture; the table has all rows
constexpr std::size_t kColonnaFrequenza = 1, kColonnaRitardo = 2, kColonnaMassimo = 3;  // of tabellaDei()

std::string decimali(double valore) { return testoDiNumero(arrotonda(valore, 1)); }
std::string percento(double probabilita) { return testoDiNumero(arrotonda(100 * probabilita, 2)) + "%"; }

std::string nome(const RigaRitardi& riga) {
  return std::to_string(riga.numero) + (riga.altro != 0 ? "-" + std::to_string(riga.altro) : "");
}

int valore(const RigaRitardi& riga, MisuraRitardi misura) {
  switch (misura) {
    case MisuraRitardi::Massimo:
      return riga.ritardoMassimo;
    case MisuraRitardi::Frequenza:
      return riga.frequenza;
    case MisuraRitardi::Ritardo:
      break;
  }
  return riga.ritardo;
}

std::string titolo(Sorte sorte, MisuraRitardi misura) {
  const std::string chi = sorte == Sorte::Ambi ? "Gli ambi" : "I numeri";
  switch (misura) {
    case MisuraRitardi::Massimo:
      return chi + " con il ritardo massimo più lungo";
    case MisuraRitardi::Frequenza:
      return chi + " più frequenti";
    case MisuraRitardi::Ritardo:
      break;
  }
  return chi + " che mancano da più estrazioni";
}

}  // namespace

std::size_t colonnaDella(MisuraRitardi misura) {
  switch (misura) {
    case MisuraRitardi::Massimo:
      return kColonnaMassimo;
    case MisuraRitardi::Frequenza:
      return kColonnaFrequenza;
    case MisuraRitardi::Ritardo:
      break;
  }
  return kColonnaRitardo;
}

Tabella tabellaColCaso(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso) {
  auto tabella = tabellaDei(ritardi, sorte);
  tabella.colonne.push_back({"Ritardo per caso %", Colonna::Tipo::Numero, 2,
                             "Con che probabilità il caso dà oggi un ritardo così lungo o più"});
  tabella.colonne.push_back({"Massimo per caso %", Colonna::Tipo::Numero, 2,
                             "Con che probabilità il caso arriva almeno una volta a un ritardo così lungo"});
  std::map<int, Cella> massimi;  // each one takes a step for each draw
  for (std::size_t n = 0; n < ritardi.righe.size(); ++n) {
    const auto& riga = ritardi.righe[n];
    auto [massimo, nuovo] = massimi.try_emplace(riga.ritardoMassimo);
    if (nuovo) massimo->second = arrotonda(100 * caso.probabilitaRitardoMassimo(riga.ritardoMassimo), 2);
    tabella.righe[n].emplace_back(arrotonda(100 * caso.probabilitaRitardo(riga.ritardo), 2));
    tabella.righe[n].push_back(massimo->second);
  }
  return tabella;
}

Disegno disegnoDei(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso, MisuraRitardi misura,
                   const std::string& dove) {
  Disegno disegno;
  if (ritardi.ruote.empty()) return disegno;
  auto righe = ritardi.righe;
  const auto quante = std::min(kBarre, righe.size());
  std::partial_sort(righe.begin(), righe.begin() + static_cast<std::ptrdiff_t>(quante), righe.end(),
                    [&](const auto& a, const auto& b) {
                      return std::tuple(-valore(a, misura), a.numero, a.altro) <
                             std::tuple(-valore(b, misura), b.numero, b.altro);
                    });
  righe.resize(quante);

  disegno.titolo = titolo(sorte, misura) + " " + dove;
  disegno.descrizione = "In testa " + nome(righe.front()) + " con " +
                        (misura == MisuraRitardi::Frequenza
                             ? quanti(righe.front().frequenza, "uscita.", "uscite.")
                             : quanti(valore(righe.front(), misura), "estrazione.", "estrazioni."));
  disegno.asseX = sorte == Sorte::Ambi ? "Ambo" : "Numero";
  disegno.asseY = misura == MisuraRitardi::Frequenza ? "Uscite" : "Estrazioni";
  Serie barre{.nome = disegno.asseY, .ruolo = Serie::Ruolo::Proprio};
  for (const auto& riga : righe) {
    disegno.posti.push_back(static_cast<double>(disegno.posti.size() + 1));
    disegno.nomi.push_back(nome(riga));
    barre.valori.push_back(valore(riga, misura));
    disegno.letture.push_back(nome(riga) + ": ritardo " + std::to_string(riga.ritardo) + ", massimo " +
                              std::to_string(riga.ritardoMassimo) + ", uscito " +
                              quanti(riga.frequenza, "volta", "volte"));
  }
  disegno.serie.push_back(std::move(barre));
  if (misura == MisuraRitardi::Frequenza)
    disegno.segni.push_back({.dove = caso.frequenzaAttesa(),
                             .testo = "uscite attese per caso: " + decimali(caso.frequenzaAttesa()),
                             .verso = Segno::Verso::Orizzontale,
                             .ruolo = Serie::Ruolo::Caso});
  if (misura == MisuraRitardi::Massimo)
    disegno.segni.push_back({.dove = static_cast<double>(caso.ritardoMassimoMediano()),
                             .testo = "il più lungo di tutti arriva per caso a " +
                                      std::to_string(caso.ritardoMassimoMediano()) + " un archivio su due",
                             .verso = Segno::Verso::Orizzontale,
                             .ruolo = Serie::Ruolo::Caso});
  return disegno;
}

std::string fraseDei(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso,
                     const std::string& dove) {
  const bool ambi = sorte == Sorte::Ambi;
  if (ritardi.ruote.empty()) return "Nessuna estrazione " + dove + " in questo intervallo.";
  const auto& oggi = ritardi.righe.front();  // the longest delay comes first
  const auto& sempre =
      *std::max_element(ritardi.righe.begin(), ritardi.righe.end(),
                        [](const auto& a, const auto& b) { return a.ritardoMassimo < b.ritardoMassimo; });
  const auto estrazioni = static_cast<int>(ritardi.ruote.size());
  const std::string chi = ambi ? "ambo" : "numero";
  const auto attese = decimali(caso.frequenzaAttesa());
  return quanti(estrazioni, "estrazione ", "estrazioni ") + dove + ": ogni " + chi +
         " vi è atteso per caso " + attese + (attese == "1" ? " volta" : " volte") +
         ". Il più in ritardo è " + nome(oggi) + ", da " + std::to_string(oggi.ritardo) + ": a un " + chi +
         " qualsiasi capita per caso nel " + percento(caso.probabilitaRitardo(oggi.ritardo)) +
         " dei casi. Il ritardo più lungo di tutti è stato " + std::to_string(sempre.ritardoMassimo) + " (" +
         nome(sempre) + "); in un archivio su due il caso arriva almeno a " +
         std::to_string(caso.ritardoMassimoMediano()) + ".";
}

}  // namespace vaticlo
