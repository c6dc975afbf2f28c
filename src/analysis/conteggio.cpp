#include "analysis/conteggio.h"

#include <algorithm>
#include <array>

namespace vaticlo {

namespace {

/// Pascal's triangle as far as an urn needs it.
constexpr auto kCombinazioni = [] {
  std::array<std::array<std::uint64_t, kEstratti + 1>, kNumeri + 1> tavola{};
  for (std::size_t n = 0; n <= kNumeri; ++n) {
    tavola[n][0] = 1;
    for (std::size_t k = 1; n > 0 && k <= kEstratti; ++k)
      tavola[n][k] = tavola[n - 1][k - 1] + tavola[n - 1][k];
  }
  return tavola;
}();

std::uint64_t combinazioni(int n, int k) {
  return kCombinazioni[static_cast<std::size_t>(n)][static_cast<std::size_t>(k)];
}

/// Numbers that the bets treat alike.
struct Classe {
  int quanti = 1;
  bool unoSolo = false;             ///< two of them win together
  InsiemeNumeri nemici;             ///< the classes of which none may come out with it
  std::vector<std::uint8_t> posti;  ///< how many places a number of it has in each `ripetute`
};

class Conteggio {
 public:
  Conteggio(const GiocataSuRuota& giocata, int numeri) {
    std::vector<Numero> presenti;
    presenti.reserve(static_cast<std::size_t>(giocata.coinvolti.quanti()));
    liberi_ = numeri;
    giocata.singoli.perOgni([&](int n) { liberi_ -= n <= numeri ? 1 : 0; });
    giocata.coinvolti.perOgni([&](int n) {
      if (n <= numeri && !giocata.singoli.contiene(n)) presenti.push_back(descrivi(giocata, n));
    });
    liberi_ -= static_cast<int>(presenti.size());
    raccogli(presenti);
    for (const auto& posti : giocata.ripetute) {
      const auto piu = [](const auto& a, const auto& b) { return a.second < b.second; };
      massimi_.push_back(std::max_element(posti.begin(), posti.end(), piu)->second);
    }
    trovati_.assign(giocata.ripetute.size(), 0);
  }

  /// The sets of `resto` numbers out of the classes from `prima` on and of the free numbers, none of them in
  /// a class of `vietate`, that let nothing win together with what is chosen already.
  std::uint64_t conta(std::size_t prima, int resto, const InsiemeNumeri& vietate) {
    if (senzaRimedio(resto)) return 0;
    std::uint64_t insiemi = nessunaVince() ? combinazioni(liberi_, resto) : 0;
    if (resto == 0) return insiemi;
    for (std::size_t c = prima; c < classi_.size(); ++c) {
      if (vietate.contiene(static_cast<int>(c))) continue;
      const auto& classe = classi_[c];
      InsiemeNumeri altre = vietate;
      altre |= classe.nemici;
      const int massimo = classe.unoSolo ? 1 : std::min(classe.quanti, resto);
      for (int k = 1; k <= massimo; ++k) {
        prendi(classe, 1);
        insiemi += combinazioni(classe.quanti, k) * conta(c + 1, resto - k, altre);
      }
      prendi(classe, -massimo);
    }
    return insiemi;
  }

 private:
  struct Numero {
    int numero;
    InsiemeNumeri nemici;
    std::vector<std::uint8_t> posti;
  };

  static Numero descrivi(const GiocataSuRuota& giocata, int n) {
    Numero descritto{n, {}, {}};
    for (const auto& gruppo : giocata.gruppi)
      if (gruppo.contiene(n)) descritto.nemici |= gruppo;
    descritto.nemici.togli(n);
    for (const auto& posti : giocata.ripetute) {
      const auto posto =
          std::find_if(posti.begin(), posti.end(), [n](const auto& p) { return p.first == n; });
      descritto.posti.push_back(posto == posti.end() ? std::uint8_t{0}
                                                     : static_cast<std::uint8_t>(posto->second));
    }
    return descritto;
  }

  /// Alike: the same places in the combinations with repetitions, and the same enemies but for each other.
  static bool uguali(const Numero& a, const Numero& b) {
    auto diA = a.nemici, diB = b.nemici;
    diA.togli(b.numero);
    diB.togli(a.numero);
    return diA == diB && a.posti == b.posti;
  }

  void raccogli(const std::vector<Numero>& presenti) {
    std::vector<const Numero*> primi;  // the first number of each class
    primi.reserve(presenti.size());
    classi_.reserve(presenti.size());
    for (const auto& numero : presenti) {
      const auto simile =
          std::find_if(primi.begin(), primi.end(), [&](const Numero* p) { return uguali(*p, numero); });
      if (simile == primi.end()) {
        primi.push_back(&numero);
        classi_.push_back({1, false, {}, numero.posti});
      } else {
        auto& classe = classi_[static_cast<std::size_t>(simile - primi.begin())];
        ++classe.quanti;
        classe.unoSolo = (*simile)->nemici.contiene(numero.numero);
      }
    }
    for (std::size_t c = 0; c < primi.size(); ++c)
      for (std::size_t altra = 0; altra < primi.size(); ++altra)
        if (primi[c]->nemici.contiene(primi[altra]->numero))
          classi_[c].nemici.aggiungi(static_cast<int>(altra));
  }

  void prendi(const Classe& classe, int volte) {
    for (std::size_t r = 0; r < trovati_.size(); ++r) trovati_[r] += volte * classe.posti[r];
  }
  [[nodiscard]] bool nessunaVince() const {
    return std::none_of(trovati_.begin(), trovati_.end(), [](int n) { return n >= 2 && n <= 5; });
  }
  /// A combination wins now and has no way to too many places.
  [[nodiscard]] bool senzaRimedio(int resto) const {
    for (std::size_t r = 0; r < trovati_.size(); ++r)
      if (trovati_[r] >= 2 && trovati_[r] <= 5 && trovati_[r] + resto * massimi_[r] <= 5) return true;
    return false;
  }

  int liberi_ = 0;
  std::vector<Classe> classi_;
  std::vector<int> massimi_, trovati_;
};

}  // namespace

std::uint64_t estrazioniSenzaVincita(const GiocataSuRuota& giocata, int numeri) {
  return Conteggio(giocata, numeri).conta(0, kEstratti, {});
}

double probabilitaSenzaVincita(const GiocataSuRuota& giocata) {
  return static_cast<double>(estrazioniSenzaVincita(giocata)) /
         static_cast<double>(combinazioni(kNumeri, kEstratti));
}

}  // namespace vaticlo
