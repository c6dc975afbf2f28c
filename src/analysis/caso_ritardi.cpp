#include "analysis/caso_ritardi.h"

#include <algorithm>
#include <cmath>

#include "analysis/giocata.h"
#include "archive/ruota.h"

namespace vaticlo {

CasoDeiRitardi::CasoDeiRitardi(const Ritardi& ritardi, Sorte sorte)
    : uscita_(sorte == Sorte::Numeri
                  ? double{kEstratti} / kNumeri
                  : double{kEstratti} * (kEstratti - 1) / (double{kNumeri} * (kNumeri - 1))),
      righe_(static_cast<int>(ritardi.righe.size())),
      ruoteFinoA_(1, 0) {
  for (const int ruote : ritardi.ruote) ruoteFinoA_.push_back(ruoteFinoA_.back() + ruote);
  for (int n = 0; n <= ruoteFinoA_.back(); ++n) nessuna_.push_back(std::pow(1 - uscita_, n));
}

double CasoDeiRitardi::frequenzaAttesa() const { return ruoteFinoA_.back() * uscita_; }

double CasoDeiRitardi::assenza(std::size_t da, std::size_t a) const {
  return nessuna_[static_cast<std::size_t>(ruoteFinoA_[a] - ruoteFinoA_[da])];
}

double CasoDeiRitardi::probabilitaRitardo(int almeno) const {
  const auto volte = ruoteFinoA_.size() - 1, lungo = static_cast<std::size_t>(std::max(almeno, 0));
  return lungo > volte ? 0 : assenza(volte - lungo, volte);
}

double CasoDeiRitardi::probabilitaRitardoMassimo(int almeno) const {
  const auto volte = ruoteFinoA_.size() - 1, lungo = static_cast<std::size_t>(std::max(almeno, 0));
  if (lungo == 0) return 1;
  if (lungo > volte) return 0;
  // senza[t]: no such delay within the first t draws. The first one to end with draw t follows a draw that
  // has the number and whose past has no such delay.
  std::vector<double> senza(volte + 1, 1.0);
  senza[lungo] = 1 - assenza(0, lungo);
  for (std::size_t t = lungo + 1; t <= volte; ++t) {
    const auto prima = t - lungo - 1;
    senza[t] = senza[t - 1] - senza[prima] * (1 - assenza(prima, prima + 1)) * assenza(prima + 1, t);
  }
  return 1 - senza[volte];
}

int CasoDeiRitardi::ritardoMassimoMediano() const {
  int almeno = 0, troppo = static_cast<int>(ruoteFinoA_.size());
  while (almeno + 1 < troppo) {
    const int mezzo = (almeno + troppo) / 2;
    const double nessuno = std::pow(1 - probabilitaRitardoMassimo(mezzo), righe_);
    (nessuno <= 0.5 ? almeno : troppo) = mezzo;
  }
  return almeno;
}

}  // namespace vaticlo
