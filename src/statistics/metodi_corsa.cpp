#include "statistics/metodi_corsa.h"

#include <algorithm>

namespace vaticlo {

MetodiDellaCorsa::MetodiDellaCorsa(const CartellaProgramma& cartella, std::vector<std::string> elenco,
                                   int inizio, int fine, SeGuasto guasto)
    : cartella_(cartella),
      elenco_(std::move(elenco)),
      inizio_(inizio),
      fine_(fine),
      seGuasto_(guasto),
      posti_(static_cast<std::size_t>(std::max(0, fine - inizio + 1))) {}

void MetodiDellaCorsa::scorri(int estrazione, const Previsione& prendi) {
  if (!nelCampo(estrazione)) return;
  auto& posti = this->posti(estrazione);
  for (std::size_t n = 0;; ++n) {
    while (n == posti.size()) {
      if (seGuasto_ == SeGuasto::FermaLaScansione && !letti_.empty() && letti_.back().guasto)
        throw RuntimeFailure(*letti_.back().guasto);
      if (letti_.size() == elenco_.size()) return;
      leggiProssimo();
    }
    prendi(*posti[n].metodo, posti[n].slot, posti[n].indice);
  }
}

const std::vector<MetodoLetto>& MetodiDellaCorsa::letti() {
  while (letti_.size() < elenco_.size()) leggiProssimo();
  return letti_;
}

void MetodiDellaCorsa::leggiProssimo() {
  auto& letto = letti_.emplace_back();
  try {
    leggi(letti_.size() - 1, letto);
  } catch (const RuntimeFailure& failure) {
    letto.guasto = failure;
  }
}

void MetodiDellaCorsa::leggi(std::size_t indice, MetodoLetto& letto) {
  const auto seManca = seGuasto_ == SeGuasto::SiSalta ? SeManca::Vuoto : SeManca::Crea;
  const auto& metodo = griglie_.emplace_back(LeggiMetodo(cartella_, elenco_[indice], seManca));
  letto.previsioni = ContaPrevisioni(metodo);
  bool serve = false;
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot) {
    const int estrazione = metodo.EstrazioneCalcolo(slot);
    if (slot > letto.previsioni) {
      letto.nonViste = letto.nonViste || estrazione != 0;
    } else if (nelCampo(estrazione)) {
      posti(estrazione).push_back({&metodo, slot, indice});
      serve = true;
    }
  }
  if (!serve) griglie_.pop_back();
}

}  // namespace vaticlo
