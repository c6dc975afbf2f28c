#include "check/previsioni_per_estrazione.h"

#include "archive/regole.h"
#include "methods/giudizio.h"
#include "methods/metodo.h"
#include "methods/testi_previsione.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

/// Notes the numbers of each hit of one colpo of a prediction.
class Raccolta : public EsitoColpo {
 public:
  explicit Raccolta(std::vector<NumeroVincente>& vincenti) : vincenti_(vincenti) {}

  void di(const Previsione& previsione, int colpo) {
    colpo_ = colpo;
    fonte_ = " (" + previsione.Metodo + ", estrazione " + std::to_string(previsione.EstrazioneCalcolo) + ")";
  }
  void ambata(int numero, int ruota) override { nota({numero}, ruota, rigaAmbata(numero, ruota, colpo_)); }
  void ambo(int a, int b, int ruota) override { nota({a, b}, ruota, rigaAmbo(a, b, ruota, colpo_)); }
  void amboTutte(int a, int b, int ruota) override {
    nota({a, b}, ruota, rigaAmboTutte(a, b, ruota, colpo_));
  }
  void sorte(const std::vector<int>& usciti, int ruota) override {
    nota(usciti, ruota, rigaNumeri(inizioSorte(usciti.size()), usciti, ruota, colpo_));
  }

 private:
  void nota(const std::vector<int>& numeri, int ruota, const std::string& riga) {
    for (const int numero : numeri) vincenti_.push_back({ruota, numero, riga.substr(1) + fonte_});
  }

  std::vector<NumeroVincente>& vincenti_;
  int colpo_ = 0;
  std::string fonte_;
};

}  // namespace

PrevisioniPerEstrazione::PrevisioniPerEstrazione(const CartellaProgramma& cartella,
                                                 const SceltaMetodo& scelta) {
  try {
    for (const auto& nome : CaricaElencoMetodi(cartella, scelta)) leggi(cartella, nome);
  } catch (const RuntimeFailure&) {
    // The check ends here too, and shows what it has found so far.
  }
}

void PrevisioniPerEstrazione::leggi(const CartellaProgramma& cartella, const std::string& metodo) {
  const auto file = LeggiMetodo(cartella, metodo, SeManca::Vuoto);
  const int previsioni = ContaPrevisioni(file);
  for (int slot = 1; slot <= previsioni; ++slot) {
    auto& calcolate = estrazioni_[file.EstrazioneCalcolo(slot)];
    if (calcolate.interrotta) continue;
    try {
      Previsione previsione;
      calcolate.decodificatore.DecodificaPrevisione(file, slot, previsione);
      previsione.Metodo = metodo;
      calcolate.previsioni.push_back(std::move(previsione));
    } catch (const RuntimeFailure&) {
      calcolate.interrotta = true;
    }
  }
}

std::optional<int> PrevisioniPerEstrazione::prima(int n) const {
  for (auto vicina = estrazioni_.lower_bound(n); vicina != estrazioni_.begin();)
    if (!(--vicina)->second.previsioni.empty()) return vicina->first;
  return std::nullopt;
}

std::optional<int> PrevisioniPerEstrazione::dopo(int n) const {
  for (auto vicina = estrazioni_.upper_bound(n); vicina != estrazioni_.end(); ++vicina)
    if (!vicina->second.previsioni.empty()) return vicina->first;
  return std::nullopt;
}

std::vector<NumeroVincente> PrevisioniPerEstrazione::vincentiIn(const ArchivioEstrazioni& archivio,
                                                                int n) const {
  std::vector<NumeroVincente> vincenti;
  const RegoleVincita regole(archivio);
  Raccolta raccolta(vincenti);
  for (const auto& [calcolo, calcolate] : estrazioni_) {
    try {
      for (const auto& previsione : calcolate.previsioni) {
        const int colpo = n - calcolo;
        if (colpo < 1 || colpo > previsione.Colpi) continue;
        raccolta.di(previsione, colpo);
        giudicaColpo(previsione, regole, n, FlagTutte::PrimaRuota, raccolta);
      }
    } catch (const RuntimeFailure&) {
      // The other predictions of that draw are not judged by its check either.
    }
  }
  return vincenti;
}

}  // namespace vaticlo
