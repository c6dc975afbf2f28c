#include <algorithm>

#include "archive/somdif.h"
#include "check/clsmetodo.h"
#include "check/numeri.h"
#include "methods/testi_previsione.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

constexpr int kRuoteValutatori = 10;  // the Nazionale takes no part

struct Posizioni {
  int p, q;
};
constexpr std::array<Posizioni, 5> kDistanze = {{{1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 1}}};
constexpr std::array<Posizioni, 10> kDifferenze = {
    {{1, 2}, {2, 3}, {3, 4}, {4, 5}, {1, 5}, {1, 3}, {1, 4}, {2, 4}, {2, 5}, {3, 5}}};

template <std::size_t N>
std::vector<int> usciti(const RegoleVincita& regole, const std::array<int, N>& numeri, int ruota,
                        int estrazione) {
  std::array<std::int16_t, N> combinazione{};
  std::transform(numeri.begin(), numeri.end(), combinazione.begin(),
                 [](int n) { return static_cast<std::int16_t>(n); });
  return regole.sorte(combinazione, ruota, estrazione);
}

}  // namespace

bool clsMetodo::ControllaCinquina(const std::array<int, 5>& numeri, int ruota, int estrazione) {
  static constexpr std::array<const char*, 4> kInizi = {" Ambo in cinquina", " Terno in cinquina",
                                                        " Quaterna in cinquina", " Cinquina secca "};
  if (ruota > kRuoteValutatori) return false;
  const auto trovati = usciti(regole_, numeri, ruota, estrazione);
  if (trovati.size() < 2) return false;
  rapporto_.riga(rigaNumeri(kInizi.at(trovati.size() - 2), trovati, ruota, ColpoCorrente_));
  return true;
}

bool clsMetodo::ControllaTerzina(int ruota, int indice, int estrazione) {
  if (indice < 1 || static_cast<std::size_t>(indice) > Terzine.size()) throw RuntimeFailure(Errore::Indice);
  const auto& terzina = Terzine[static_cast<std::size_t>(indice - 1)];
  bool vinto = false;
  for (int w = 1; w <= kRuoteValutatori; ++w) {
    const auto trovati = usciti(regole_, terzina, w, estrazione);
    const char* inizio = nullptr;
    if (trovati.size() == 2 && w == ruota) inizio = " Ambo in terzina";
    if (trovati.size() == 3) inizio = w == ruota ? " Terno secco" : " Terno secco a tutte ";
    if (inizio == nullptr) continue;
    rapporto_.riga(rigaNumeri(inizio, trovati, w, ColpoCorrente_));
    vinto = true;
  }
  return vinto;
}

void clsMetodo::DistanzePosizioni(int estrazione) {
  for (std::size_t c = 0; c < kDistanze.size(); ++c)
    for (int w = 1; w <= kRuoteValutatori; ++w)
      posizioni_[c][static_cast<std::size_t>(w - 1)] = static_cast<std::int16_t>(DistanzaCiclica(
          archivio_(estrazione, w, kDistanze[c].p), archivio_(estrazione, w, kDistanze[c].q)));
}

void clsMetodo::DifferenzePosizioni(int estrazione) {
  for (std::size_t c = 0; c < kDifferenze.size(); ++c)
    for (int w = 1; w <= kRuoteValutatori; ++w)
      posizioni_[c][static_cast<std::size_t>(w - 1)] = static_cast<std::int16_t>(
          Differenza(archivio_(estrazione, w, kDifferenze[c].p), archivio_(estrazione, w, kDifferenze[c].q)));
}

}  // namespace vaticlo
