#include "statistics/metodi_corsa.h"

#include <algorithm>

namespace vaticlo {

MetodiDellaCorsa::MetodiDellaCorsa(const CartellaProgramma& cartella, std::vector<std::string> elenco,
                                   int inizio, int fine)
    : cartella_(cartella),
      elenco_(std::move(elenco)),
      inizio_(inizio),
      fine_(fine),
      posti_(static_cast<std::size_t>(std::max(0, fine - inizio + 1))) {}

void MetodiDellaCorsa::scorri(int estrazione, const Previsione& prendi) {
  if (!nelCampo(estrazione)) return;
  auto& posti = this->posti(estrazione);
  for (std::size_t n = 0;; ++n) {
    while (n == posti.size()) {
      if (letti_ == elenco_.size()) return;
      leggiProssimo();
    }
    prendi(*posti[n].metodo, posti[n].slot, *posti[n].nome);
  }
}

void MetodiDellaCorsa::leggiProssimo() {
  if (guasto_) throw *guasto_;
  try {
    griglie_.push_back(LeggiMetodo(cartella_, elenco_[letti_]));
    const auto& metodo = griglie_.back();
    const int previsioni = ContaPrevisioni(metodo);
    bool serve = false;
    for (int slot = 1; slot <= previsioni; ++slot) {
      const int estrazione = metodo.EstrazioneCalcolo(slot);
      if (!nelCampo(estrazione)) continue;
      posti(estrazione).push_back({&metodo, slot, &elenco_[letti_]});
      serve = true;
    }
    if (!serve) griglie_.pop_back();
    ++letti_;
  } catch (const RuntimeFailure& failure) {
    guasto_ = failure;
    throw;
  }
}

}  // namespace vaticlo
