#include "analysis/tabelle.h"

#include "platform/conversione.h"

namespace vaticlo {

namespace {

Cella quota(std::optional<double> valore) {
  if (!valore) return {};
  return arrotonda(*valore, 1);
}

}  // namespace

Tabella tabellaDel(const std::vector<RigaQuadro>& quadro) {
  Tabella tabella{{"Metodo", "Previsioni", "Giocate", "Vincenti", "Negative", "In gioco", "Vincenti %",
                   "Attese %", "Colpo medio", "Stato"},
                  {}};
  for (const auto& riga : quadro)
    tabella.righe.push_back({riga.metodo, riga.previsioni, riga.giocate, riga.vincenti, riga.negative,
                             riga.inGioco, quota(riga.quotaVincenti()), quota(riga.quotaAttese()),
                             quota(riga.colpoMedio()), std::string(testoStato(riga.stato))});
  return tabella;
}

Tabella tabellaDei(const std::vector<Confronto>& confronti) {
  Tabella tabella{{"Metodo", "Previsioni concluse", "Vincenti", "Vincenti %", "Attese", "Attese %",
                   "Prove con almeno", "Prove", "Probabilità %", "Non giudicabili"},
                  {}};
  for (const auto& uno : confronti)
    tabella.righe.push_back({uno.nome, uno.concluse, uno.vincenti, quota(uno.quotaVincenti()),
                             arrotonda(uno.attese, 2), quota(uno.quotaAttese()), uno.almeno, uno.prove,
                             quota(100 * uno.probabilitaAlmeno()), uno.nonGiudicabili});
  return tabella;
}

Tabella tabellaDei(const Ritardi& ritardi, Sorte sorte) {
  const bool ambi = sorte == Sorte::Ambi;
  Tabella tabella{{ambi ? "Ambo" : "Numero", "Frequenza", "Ritardo", "Ritardo massimo"}, {}};
  for (const auto& riga : ritardi.righe) {
    const Cella nome =
        ambi ? Cella(std::to_string(riga.numero) + "-" + std::to_string(riga.altro)) : Cella(riga.numero);
    tabella.righe.push_back({nome, riga.frequenza, riga.ritardo, riga.ritardoMassimo});
  }
  return tabella;
}

}  // namespace vaticlo
