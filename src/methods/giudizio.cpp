#include "methods/giudizio.h"

#include "platform/failure.h"

namespace vaticlo {

namespace {

bool giudicaAmbate(const Previsione& previsione, const RegoleVincita& regole, int estrazione,
                   EsitoColpo& esito) {
  bool vinto = false;
  for (const int numero : previsione.Ambate)
    for (const int ruota : previsione.Ruote)
      if (regole.ambata(numero, ruota, estrazione)) {
        esito.ambata(numero, ruota);
        vinto = true;
      }
  return vinto;
}

bool giudicaAmbo(std::pair<int, int> ambo, int ruota, bool tutte, const InsiemeRuote& uscito,
                 EsitoColpo& esito) {
  bool vinto = false;
  for (const int w : uscito) {
    if (w == ruota) esito.ambo(ambo.first, ambo.second, w);
    if (tutte) esito.amboTutte(ambo.first, ambo.second, w);
    vinto = vinto || w == ruota || tutte;
  }
  return vinto;
}

bool giudicaAmbi(const Previsione& previsione, const RegoleVincita& regole, int estrazione, FlagTutte flag,
                 EsitoColpo& esito) {
  bool vinto = false;
  for (const auto& ambo : previsione.Ambi) {
    // Meant: ambi need a first wheel, which `Tutte` alone does not give (guide: "Tutte da sola").
    if (previsione.Ruote.empty()) throw RuntimeFailure(Errore::Indice);
    const auto uscito = regole.ambo(ambo.first, ambo.second, estrazione);
    bool tutte = previsione.Tutte;
    for (const int ruota : previsione.Ruote) {
      vinto |= giudicaAmbo(ambo, ruota, tutte, uscito, esito);
      if (flag == FlagTutte::PrimaRuota) tutte = false;
    }
  }
  return vinto;
}

bool giudicaSorti(const Previsione& previsione, const RegoleVincita& regole, int estrazione,
                  EsitoColpo& esito) {
  bool vinto = false;
  for (const auto& combinazione : previsione.Sup)
    for (const int ruota : previsione.Ruote) {
      const auto usciti = regole.sorte(combinazione, ruota, estrazione);
      if (usciti.size() < 2 || usciti.size() > 5) continue;
      esito.sorte(usciti, ruota);
      vinto = true;
    }
  return vinto;
}

}  // namespace

bool giudicaColpo(const Previsione& previsione, const RegoleVincita& regole, int estrazione, FlagTutte flag,
                  EsitoColpo& esito) {
  bool vinto = giudicaAmbate(previsione, regole, estrazione, esito);
  vinto |= giudicaAmbi(previsione, regole, estrazione, flag, esito);
  vinto |= giudicaSorti(previsione, regole, estrazione, esito);
  return vinto;
}

}  // namespace vaticlo
