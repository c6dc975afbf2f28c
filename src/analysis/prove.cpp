#include "analysis/prove.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <limits>
#include <mutex>
#include <thread>

#include "analysis/estrazioni_a_caso.h"

namespace vaticlo {

namespace {

constexpr std::chrono::milliseconds kIntervallo{50};  // between two reports of the progress

bool vinceSu(const GiocataSuRuota& giocata, unsigned ruote, int estrazione, const EstrazioniACaso& caso) {
  for (; ruote != 0; ruote &= ruote - 1)
    if (giocata.vince(caso.estratti(estrazione, std::countr_zero(ruote)))) return true;
  return false;
}

int colpoContro(const EstrazioniACaso& caso, const PianoDiGioco& piano, const RuoteEstratte& ruote) {
  const bool conTutte = !piano.giocata.altrove.vuota();
  for (int colpo = 1; colpo <= piano.colpi; ++colpo) {
    if (colpo == piano.colpoDellaData) return colpo;
    const int estrazione = piano.estrazione + colpo;
    const unsigned estratte = ruote[static_cast<std::size_t>(estrazione)];
    if (vinceSu(piano.giocata.suRuota, estratte & piano.ruote, estrazione, caso)) return colpo;
    if (conTutte && vinceSu(piano.giocata.altrove, estratte & ~unsigned{piano.ruote}, estrazione, caso))
      return colpo;
  }
  return 0;
}

/// The winners of one run, by step of the axis.
using Prova = std::vector<std::uint32_t>;

EsitoProve esitoVuoto(std::size_t previsioni, std::size_t passi) {
  EsitoProve esito;
  esito.vincenti.assign(previsioni + 1, 0);
  esito.andamento.assign(passi, std::vector<std::uint32_t>(previsioni + 1, 0));
  return esito;
}

void aggiungi(EsitoProve& esito, const Prova& prova) {
  std::size_t vincenti = 0;
  for (std::size_t passo = 0; passo < prova.size(); ++passo) {
    vincenti += prova[passo];
    ++esito.andamento[passo][vincenti];
  }
  ++esito.vincenti[vincenti];
}

/// The runs, handed out one by one to the threads and added up as they end.
class Serie {
 public:
  Serie(std::span<const GruppoGiocato> gruppi, const RuoteEstratte& ruote, const OpzioniProve& opzioni,
        std::stop_token fermata)
      : gruppi_(gruppi), ruote_(ruote), opzioni_(opzioni), fermata_(std::move(fermata)) {
    std::vector<const PianoDiGioco*> tutti;
    for (const auto& gruppo : gruppi_)
      for (const auto& piano : gruppo.piani) tutti.push_back(&piano);
    risultato_.asse = AsseDelTempo(tutti);
    const auto passi = static_cast<std::size_t>(risultato_.asse.passi());
    for (const auto& gruppo : gruppi_) risultato_.gruppi.push_back(esitoVuoto(gruppo.piani.size(), passi));
    risultato_.insieme = esitoVuoto(tutti.size(), passi);
  }

  RisultatoProve esegui(const std::function<void(int)>& avanzamento) {
    const unsigned nuclei =
        opzioni_.fili != 0 ? opzioni_.fili : std::max(1U, std::thread::hardware_concurrency());
    attivi_ = static_cast<int>(nuclei);
    std::vector<std::jthread> fili;
    fili.reserve(nuclei);
    for (unsigned n = 0; n < nuclei; ++n) fili.emplace_back([this] { lavora(); });
    for (std::unique_lock guardia(mutex_); attivi_ > 0;) {
      finito_.wait_for(guardia, kIntervallo, [this] { return attivi_ == 0; });
      const int fatte = risultato_.prove;
      guardia.unlock();
      if (avanzamento) avanzamento(fatte);
      guardia.lock();
    }
    fili.clear();
    return std::move(risultato_);
  }

 private:
  void lavora() {
    const auto passi = static_cast<std::size_t>(risultato_.asse.passi());
    std::vector<Prova> prove(gruppi_.size(), Prova(passi));
    Prova insieme(passi);
    for (int numero = prossima(); numero >= 0; numero = prossima()) {
      std::fill(insieme.begin(), insieme.end(), 0U);
      for (std::size_t g = 0; g < gruppi_.size(); ++g) {
        gioca(gruppi_[g].piani, numero, prove[g]);
        std::transform(insieme.begin(), insieme.end(), prove[g].begin(), insieme.begin(), std::plus<>());
      }
      const std::lock_guard guardia(mutex_);
      for (std::size_t g = 0; g < gruppi_.size(); ++g) aggiungi(risultato_.gruppi[g], prove[g]);
      aggiungi(risultato_.insieme, insieme);
      ++risultato_.prove;
    }
    const std::lock_guard guardia(mutex_);
    if (--attivi_ == 0) finito_.notify_one();
  }

  /// The number of the next run; -1 when there is none. A run that was handed out is always finished, so the
  /// runs done are the first so many.
  int prossima() {
    const std::lock_guard guardia(mutex_);
    return fermata_.stop_requested() || date_ >= opzioni_.prove ? -1 : date_++;
  }

  void gioca(std::span<const PianoDiGioco> piani, int numero, Prova& prova) const {
    std::fill(prova.begin(), prova.end(), 0U);
    const EstrazioniACaso caso(opzioni_.seme, numero);
    for (const auto& piano : piani)
      if (const int colpo = colpoContro(caso, piano, ruote_); colpo > 0)
        ++prova[risultato_.asse.passo(piano.estrazione + colpo)];
  }

  std::span<const GruppoGiocato> gruppi_;
  const RuoteEstratte& ruote_;
  const OpzioniProve& opzioni_;
  std::stop_token fermata_;
  RisultatoProve risultato_;
  int date_ = 0, attivi_ = 0;
  std::mutex mutex_;
  std::condition_variable finito_;
};

}  // namespace

AsseDelTempo::AsseDelTempo(std::span<const PianoDiGioco* const> piani) {
  int prima = std::numeric_limits<int>::max(), ultima = 0;
  for (const auto* piano : piani) {
    if (piano->colpi == 0) continue;
    prima = std::min(prima, piano->estrazione + 1);
    ultima = std::max(ultima, piano->estrazione + piano->colpi);
  }
  if (ultima < prima) return;
  prima_ = prima;
  lunghezza_ = ultima - prima + 1;
  passi_ = std::min(kMassimo, lunghezza_);
}

int colpoVincente(const PianoDiGioco& piano, const RuoteEstratte& ruote, std::uint64_t seme, int prova) {
  return colpoContro(EstrazioniACaso(seme, prova), piano, ruote);
}

RisultatoProve provaIlCaso(std::span<const GruppoGiocato> gruppi, const RuoteEstratte& ruote,
                           const OpzioniProve& opzioni, std::stop_token fermata,
                           const std::function<void(int fatte)>& avanzamento) {
  return Serie(gruppi, ruote, opzioni, std::move(fermata)).esegui(avanzamento);
}

}  // namespace vaticlo
