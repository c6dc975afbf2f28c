#include "analysis/esito_in_parole.h"

#include <algorithm>
#include <array>
#include <vector>

#include "archive/ruota.h"
#include "platform/failure.h"
#include "statistics/giudizio_statistica.h"

namespace vaticlo {

namespace {

/// The hits of the winning colpo, each named once, though the statistics count some several times.
class Vincite : public EsitoColpo {
 public:
  [[nodiscard]] std::string testo() const {
    std::string testo;
    for (const auto& voce : voci_) testo += (testo.empty() ? "" : ", ") + voce;
    return testo;
  }

 private:
  void ambata(int numero, int ruota) override { annota("ambata " + std::to_string(numero) + su(ruota)); }
  void ambo(int a, int b, int ruota) override { annota("ambo " + coppia(a, b) + su(ruota)); }
  void amboTutte(int a, int b, int ruota) override {
    annota("ambo " + coppia(a, b) + " su Tutte (" + std::string(SiglaRuota(ruota)) + ")");
  }
  void sorte(const std::vector<int>& usciti, int ruota) override {
    static constexpr std::array<const char*, 4> kNomi = {"ambo", "terno", "quaterna", "cinquina"};
    std::string numeri;
    for (const int numero : usciti) numeri += (numeri.empty() ? "" : "-") + std::to_string(numero);
    annota(std::string(kNomi.at(usciti.size() - 2)) + " " + numeri + su(ruota));
  }

  static std::string coppia(int a, int b) { return std::to_string(a) + "-" + std::to_string(b); }
  static std::string su(int ruota) { return " " + std::string(SiglaRuota(ruota)); }
  void annota(std::string voce) {
    if (std::find(voci_.begin(), voci_.end(), voce) == voci_.end()) voci_.push_back(std::move(voce));
  }

  std::vector<std::string> voci_;
};

}  // namespace

std::string ancora(int colpi) {
  return colpi == 1 ? "ancora 1 colpo" : "ancora " + std::to_string(colpi) + " colpi";
}

std::string esitoInParole(const Previsione& previsione, const RegoleVincita& regole, int ultima) {
  Vincite vincite;
  try {
    const auto esito = giudicaPrevisione(previsione, regole, ultima, vincite);
    switch (esito.stato) {
      case StatoPrevisione::Vincente:
        return "vinta al " + std::to_string(esito.colpo) + "° colpo: " + vincite.testo();
      case StatoPrevisione::InGioco:
        return "in gioco, " + ancora(std::min<int>(previsione.Colpi,
                                                   previsione.EstrazioneCalcolo + previsione.Colpi - ultima));
      case StatoPrevisione::Negativa:
        break;
    }
    return "negativa";
  } catch (const RuntimeFailure&) {
    return previsione.Ruote.empty() ? "non giudicabile: gli ambi su Tutte vogliono anche una ruota"
                                    : "non giudicabile: ha una ruota che non esiste";
  }
}

}  // namespace vaticlo
