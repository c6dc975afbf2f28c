#include "analysis/parole_confronto.h"

#include <cmath>

#include "platform/conversione.h"

namespace vaticlo {

namespace {

constexpr double kInsolito = 0.05;  // one run in twenty

std::string percento(double valore) { return testoDiNumero(arrotonda(valore, 1)) + "%"; }

/// "43 prove su 100 fanno", with as many runs as it takes to name at least one.
std::string proveSu(double probabilita) {
  const int su = probabilita >= 0.01 ? 100 : 1000;
  if (probabilita * su < 1) return "meno di 1 prova su " + std::to_string(su) + " fa";
  const auto quante = std::lround(probabilita * su);
  return quante == 1 ? "1 prova su " + std::to_string(su) + " fa"
                     : std::to_string(quante) + " prove su " + std::to_string(su) + " fanno";
}

}  // namespace

std::string fraseDel(const Confronto& confronto) {
  const auto inizio = percento(confronto.quotaVincenti()) + " di vincenti; per caso se ne attendono " +
                      percento(confronto.quotaAttese());
  if (confronto.prove == 0) return inizio + ". Senza prove non si può dire altro.";
  const double almeno = confronto.probabilitaAlmeno(), alPiu = confronto.probabilitaAlPiu();
  if (almeno <= kInsolito)
    return inizio + ": " + proveSu(almeno) +
           " almeno così. Per caso succede di rado, ma succede, e non dice nulla delle prossime estrazioni.";
  if (alPiu <= kInsolito)
    return inizio + ": " + proveSu(alPiu) +
           " così o peggio. Per caso succede di rado, ma succede, e non dice nulla delle prossime "
           "estrazioni.";
  return inizio + ": " + proveSu(almeno) + " almeno così. Il risultato non si distingue dal caso.";
}

std::string avvertenzaPer(std::size_t metodi) {
  if (metodi < 2) return "";
  return "Di " + std::to_string(metodi) +
         " metodi confrontati insieme, in media uno su venti sembra insolito per pura fortuna.";
}

}  // namespace vaticlo
