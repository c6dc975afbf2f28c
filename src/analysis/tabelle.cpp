#include "analysis/tabelle.h"

#include "platform/conversione.h"

namespace vaticlo {

namespace {

constexpr auto kNumero = Colonna::Tipo::Numero;

Cella quota(std::optional<double> valore) {
  if (!valore) return {};
  return arrotonda(*valore, 1);
}

}  // namespace

Tabella tabellaDel(const std::vector<RigaQuadro>& quadro) {
  Tabella tabella{{{"Metodo"},
                   {"Previsioni", kNumero, 0, "Quante ne vedono verifica, statistica ed elenchi"},
                   {"Giocate", kNumero, 0, "Calcolate su queste estrazioni: vincenti, negative e in gioco"},
                   {"Vincenti", kNumero},
                   {"Negative", kNumero, 0, "Giocate fino in fondo senza una vincita"},
                   {"In gioco", kNumero},
                   {"Vincenti %", kNumero, 1, "Di quelle non più in gioco"},
                   {"Attese %", kNumero, 1, "Quante ne vincerebbe in media il caso, tra le concluse"},
                   {"Colpo medio", kNumero, 1, "A quale colpo sono arrivate in media le vincite"},
                   {"Stato"}},
                  {}};
  for (const auto& riga : quadro)
    tabella.righe.push_back({riga.metodo, riga.previsioni, riga.giocate, riga.vincenti, riga.negative,
                             riga.inGioco, quota(riga.quotaVincenti()), quota(riga.quotaAttese()),
                             quota(riga.colpoMedio()), std::string(testoStato(riga.stato))});
  return tabella;
}

Tabella tabellaDelle(const std::vector<VocePrevisione>& previsioni) {
  Tabella tabella{{{"N.", kNumero, 0, "Il posto della previsione nel metodo"},
                   {"Estrazione", kNumero, 0, "Su cui è calcolata: si gioca dalla successiva"},
                   {"Data", Colonna::Tipo::Giorno},
                   {"Telefono"},
                   {"Ruote"},
                   {"Ambate"},
                   {"Ambi"},
                   {"Sorti"},
                   {"Colpi", kNumero, 0, "Per quante estrazioni si gioca"},
                   {"Esito"}},
                  {}};
  for (const auto& voce : previsioni) {
    const auto& testi = voce.testi;
    const auto colpi = cifre(testi.colpi);
    tabella.righe.push_back({voce.slot, voce.estrazione, voce.data, testi.numero, testi.ruote, testi.ambate,
                             testi.ambi, testi.sup, colpi ? Cella(*colpi) : Cella(), voce.esito});
  }
  return tabella;
}

Tabella tabellaDei(const std::vector<Confronto>& confronti) {
  Tabella tabella{{{"Metodo"},
                   {"Previsioni concluse", kNumero},
                   {"Vincenti", kNumero},
                   {"Vincenti %", kNumero, 1},
                   {"Attese", kNumero, 2},
                   {"Attese %", kNumero, 1},
                   {"Prove con almeno", kNumero},
                   {"Prove", kNumero},
                   {"Probabilità %", kNumero, 1},
                   {"Non giudicabili", kNumero}},
                  {}};
  for (const auto& uno : confronti)
    tabella.righe.push_back({uno.nome, uno.concluse, uno.vincenti, quota(uno.quotaVincenti()),
                             arrotonda(uno.attese, 2), quota(uno.quotaAttese()), uno.almeno, uno.prove,
                             quota(100 * uno.probabilitaAlmeno()), uno.nonGiudicabili});
  return tabella;
}

Tabella tabellaDei(const Ritardi& ritardi, Sorte sorte) {
  const bool ambi = sorte == Sorte::Ambi;
  Tabella tabella{{ambi ? Colonna{"Ambo"} : Colonna{"Numero", kNumero},
                   {"Frequenza", kNumero},
                   {"Ritardo", kNumero},
                   {"Ritardo massimo", kNumero}},
                  {}};
  for (const auto& riga : ritardi.righe) {
    const Cella nome =
        ambi ? Cella(std::to_string(riga.numero) + "-" + std::to_string(riga.altro)) : Cella(riga.numero);
    tabella.righe.push_back({nome, riga.frequenza, riga.ritardo, riga.ritardoMassimo});
  }
  return tabella;
}

}  // namespace vaticlo
