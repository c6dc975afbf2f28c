#include "analysis/giocata.h"

#include <algorithm>
#include <span>

#include "archive/ruota.h"

namespace vaticlo {

namespace {

constexpr int kMinimo = 2, kMassimo = 5;  // places of a combination that win

bool nellUrna(int numero) { return numero >= 1 && numero <= kNumeri; }

void aggiungiGruppo(GiocataSuRuota& giocata, const InsiemeNumeri& gruppo) {
  if (!gruppo.neHaDueDi(gruppo)) return;
  giocata.coinvolti |= gruppo;
  giocata.gruppi.push_back(gruppo);
}

void aggiungiAmbo(GiocataSuRuota& giocata, std::pair<int, int> ambo) {
  if (!nellUrna(ambo.first) || !nellUrna(ambo.second)) return;
  if (ambo.first == ambo.second) {
    giocata.singoli.aggiungi(ambo.first);
    return;
  }
  InsiemeNumeri gruppo;
  gruppo.aggiungi(ambo.first);
  gruppo.aggiungi(ambo.second);
  aggiungiGruppo(giocata, gruppo);
}

/// The places that five drawn numbers can find at most.
int postiAlMassimo(const GiocataSuRuota::Ripetuta& posti) {
  std::vector<int> quanti;
  for (const auto& [numero, volte] : posti) quanti.push_back(volte);
  std::sort(quanti.rbegin(), quanti.rend());
  int somma = 0;
  for (std::size_t n = 0; n < quanti.size() && n < kEstratti; ++n) somma += quanti[n];
  return somma;
}

void aggiungiPosti(GiocataSuRuota& giocata, GiocataSuRuota::Ripetuta posti) {
  InsiemeNumeri gruppo;
  if (postiAlMassimo(posti) > kMassimo) {
    for (const auto& [numero, quanti] : posti) giocata.coinvolti.aggiungi(numero);
    giocata.ripetute.push_back(std::move(posti));
    return;
  }
  for (const auto& [numero, quanti] : posti) (quanti >= kMinimo ? giocata.singoli : gruppo).aggiungi(numero);
  aggiungiGruppo(giocata, gruppo);
}

void aggiungiCombinazione(GiocataSuRuota& giocata, std::span<const std::int16_t> combinazione) {
  InsiemeNumeri numeri;
  for (const int numero : combinazione)
    if (nellUrna(numero)) numeri.aggiungi(numero);
  GiocataSuRuota::Ripetuta posti;
  numeri.perOgni([&](int numero) {
    posti.emplace_back(numero,
                       static_cast<int>(std::count(combinazione.begin(), combinazione.end(), numero)));
  });
  aggiungiPosti(giocata, std::move(posti));
}

}  // namespace

bool GiocataSuRuota::vinceInsieme(const InsiemeNumeri& estratti) const {
  for (const auto& gruppo : gruppi)
    if (gruppo.neHaDueDi(estratti)) return true;
  for (const auto& posti : ripetute) {
    int trovati = 0;
    for (const auto& [numero, quante] : posti) trovati += estratti.contiene(numero) ? quante : 0;
    if (trovati >= kMinimo && trovati <= kMassimo) return true;
  }
  return false;
}

Giocata giocataDi(const Previsione& previsione) {
  Giocata giocata;
  giocata.suRuota.gruppi.reserve(previsione.Ambi.size() + previsione.Sup.size());
  for (const int numero : previsione.Ambate)
    if (nellUrna(numero)) giocata.suRuota.singoli.aggiungi(numero);
  for (const auto& ambo : previsione.Ambi) {
    aggiungiAmbo(giocata.suRuota, ambo);
    if (previsione.Tutte) aggiungiAmbo(giocata.altrove, ambo);
  }
  for (const auto& combinazione : previsione.Sup) aggiungiCombinazione(giocata.suRuota, combinazione);
  return giocata;
}

}  // namespace vaticlo
