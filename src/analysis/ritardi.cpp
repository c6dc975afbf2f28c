#include "analysis/ritardi.h"

#include <algorithm>
#include <array>

#include "analysis/ruote_estratte.h"
#include "archive/ruota.h"

namespace vaticlo {

namespace {

/// The numbers of a wheel, each once, in ascending order; cells that hold none of the urn are passed over.
std::vector<int> numeriDi(const ArchivioEstrazioni& archivio, int estrazione, int ruota) {
  InsiemeNumeri insieme;
  for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k)
    if (const int n = archivio(estrazione, ruota, k); n >= 1 && n <= kNumeri) insieme.aggiungi(n);
  std::vector<int> numeri;
  insieme.perOgni([&](int n) { numeri.push_back(n); });
  return numeri;
}

/// The rows of all numbers or all pairs, found by their numbers.
class Tavola {
 public:
  explicit Tavola(Sorte sorte) : sorte_(sorte) {
    for (int a = 1; a <= kNumeri; ++a) {
      if (sorte == Sorte::Numeri) {
        aggiungi(a, 0);
      } else {
        for (int b = a + 1; b <= kNumeri; ++b) aggiungi(a, b);
      }
    }
  }

  /// These numbers came out on one wheel of draw `volta`, counted from 1.
  void esce(const std::vector<int>& numeri, int volta) {
    for (std::size_t n = 0; n < numeri.size(); ++n) {
      if (sorte_ == Sorte::Numeri) {
        segna(posto(numeri[n], 0), volta);
      } else {
        for (std::size_t m = n + 1; m < numeri.size(); ++m) segna(posto(numeri[n], numeri[m]), volta);
      }
    }
  }

  [[nodiscard]] std::vector<RigaRitardi> chiudi(int volte) {
    for (std::size_t n = 0; n < righe_.size(); ++n) {
      auto& riga = righe_[n];
      riga.ritardo = volte - ultime_[n];
      riga.ritardoMassimo = std::max(riga.ritardoMassimo, riga.ritardo);
    }
    std::stable_sort(righe_.begin(), righe_.end(),
                     [](const auto& a, const auto& b) { return a.ritardo > b.ritardo; });
    return std::move(righe_);
  }

 private:
  void aggiungi(int a, int b) {
    posti_[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)] = righe_.size();
    righe_.push_back({.numero = a, .altro = b});
    ultime_.push_back(0);
  }
  [[nodiscard]] std::size_t posto(int a, int b) const {
    return posti_[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)];
  }
  void segna(std::size_t posto, int volta) {
    auto& riga = righe_[posto];
    ++riga.frequenza;
    riga.ritardoMassimo = std::max(riga.ritardoMassimo, volta - ultime_[posto] - 1);
    ultime_[posto] = volta;
  }

  Sorte sorte_;
  std::array<std::array<std::size_t, kNumeri + 1>, kNumeri + 1> posti_{};
  std::vector<RigaRitardi> righe_;
  std::vector<int> ultime_;  // when each came out last; 0 for never
};

}  // namespace

Ritardi ritardiDi(const ArchivioEstrazioni& archivio, int ruota, Sorte sorte,
                  IntervalloEstrazioni intervallo) {
  const int prima = ruota == kTutte ? 1 : ruota, ultima = ruota == kTutte ? kRuote : ruota;
  const auto estratte = ruoteEstratte(archivio);
  const int al = std::min(intervallo.al, static_cast<int>(estratte.size()) - 1);
  Ritardi ritardi;
  Tavola tavola(sorte);
  for (int d = std::max(intervallo.dal, 1); d <= al; ++d) {
    int ruote = 0;
    for (int w = prima; w <= ultima; ++w) {
      if ((estratte[static_cast<std::size_t>(d)] >> w & 1) == 0) continue;
      ++ruote;
      tavola.esce(numeriDi(archivio, d, w), static_cast<int>(ritardi.ruote.size()) + 1);
    }
    if (ruote > 0) ritardi.ruote.push_back(ruote);
  }
  ritardi.righe = tavola.chiudi(static_cast<int>(ritardi.ruote.size()));
  return ritardi;
}

}  // namespace vaticlo
