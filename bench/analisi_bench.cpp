// What the analysis costs beside the judging of the statistics. `VATICLO_ARCHIVIO` may name an archive to use
// in place of the made one.
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "analysis/confronto.h"
#include "analysis/conteggio.h"
#include "analysis/quadro.h"
#include "analysis/ritardi.h"
#include "archive/archivio.h"
#include "archive/ruota.h"
#include "cartella_grande.h"
#include "methods/catalogo.h"
#include "methods/decodifica.h"
#include "platform/cartella.h"

namespace vaticlo {
namespace {

constexpr int kEstrazioni = 7270;

/// A made folder with that many methods of nine predictions, gone with the object.
class Cartella {
 public:
  explicit Cartella(int metodi)
      : cartella(std::filesystem::temp_directory_path() / ("vaticlo-analisi-" + std::to_string(::getpid()))) {
    creaCartellaGrande(cartella, kEstrazioni, metodi);
    if (const char* vero = std::getenv("VATICLO_ARCHIVIO"))
      std::filesystem::copy_file(vero, cartella.file(kFileArchivio),
                                 std::filesystem::copy_options::overwrite_existing);
    archivio = ApriArchivio(cartella);
    elenco = CaricaElencoMetodi(cartella, {});
    ultima = archivio.PrimoIndiceLibero() - 1;
  }
  Cartella(const Cartella&) = delete;
  Cartella& operator=(const Cartella&) = delete;
  ~Cartella() { std::filesystem::remove_all(cartella.radice()); }

  [[nodiscard]] std::vector<MetodoGiudicato> giudicati() const {
    return giudicaMetodi(cartella, archivio, elenco, {1, ultima});
  }

  CartellaProgramma cartella;
  ArchivioEstrazioni archivio;
  std::vector<std::string> elenco;
  int ultima = 0;
};

struct Nessuno : EsitoColpo {
  void ambata(int /*numero*/, int /*ruota*/) override {}
  void ambo(int /*a*/, int /*b*/, int /*ruota*/) override {}
  void amboTutte(int /*a*/, int /*b*/, int /*ruota*/) override {}
  void sorte(const std::vector<int>& /*usciti*/, int /*ruota*/) override {}
};

/// The processor time that the work takes on this thread.
template <class Lavoro>
double secondi(Lavoro lavoro) {
  const auto adesso = [] {
    timespec tempo{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tempo);
    return static_cast<double>(tempo.tv_sec) + static_cast<double>(tempo.tv_nsec) * 1e-9;
  };
  const double inizio = adesso();
  lavoro();
  return adesso() - inizio;
}

/// One run of chance against one judging by the statistics without its reports, of the same concluded
/// predictions. `su_motore`: a judging as the engine does it, which decodes them and looks at the draws anew.
/// `su_giudizio`: the bare judging, everything decoded and every draw seen before.
void ProvaControGiudizio(benchmark::State& stato) {
  const Cartella cartella(static_cast<int>(stato.range(0)));
  const auto ruote = ruoteEstratte(cartella.archivio);
  std::vector<PianoDiGioco> piani;
  for (const auto& metodo : cartella.giudicati())
    for (const auto& giudicata : metodo.previsioni)
      if (giudicata.conclusa) piani.push_back(*giudicata.conclusa);
  std::vector<FileMetodo> griglie;
  std::vector<Previsione> previsioni;
  Decodificatore prima;
  for (const auto& nome : cartella.elenco) {
    griglie.push_back(LeggiMetodo(cartella.cartella, nome));
    for (int slot = 1; slot <= ContaPrevisioni(griglie.back()); ++slot)
      prima.DecodificaPrevisione(griglie.back(), slot, previsioni.emplace_back());
  }

  Nessuno nessuno;
  const auto giudica = [&](const RegoleVincita& regole, const Previsione& previsione) {
    benchmark::DoNotOptimize(giudicaPrevisione(previsione, regole, cartella.ultima, nessuno));
  };
  const RegoleVincita note(cartella.archivio);
  for (const auto& previsione : previsioni) giudica(note, previsione);

  double motore = 0, giudizio = 0, prove = 0;
  int numero = 0;
  for (auto _ : stato) {
    motore += secondi([&] {
      const RegoleVincita regole(cartella.archivio);
      Decodificatore decodificatore;
      Previsione previsione;
      for (const auto& griglia : griglie)
        for (int slot = 1; slot <= ContaPrevisioni(griglia); ++slot) {
          decodificatore.DecodificaPrevisione(griglia, slot, previsione);
          giudica(regole, previsione);
        }
    });
    giudizio += secondi([&] {
      for (const auto& previsione : previsioni) giudica(note, previsione);
    });
    prove += secondi([&] {
      for (const auto& piano : piani) benchmark::DoNotOptimize(colpoVincente(piano, ruote, 1, numero));
    });
    ++numero;
  }
  stato.counters["previsioni"] = static_cast<double>(piani.size());
  stato.counters["us_per_prova"] = prove / numero * 1e6;
  stato.counters["su_motore"] = prove / motore;
  stato.counters["su_giudizio"] = prove / giudizio;
}
BENCHMARK(ProvaControGiudizio)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void MilleProve(benchmark::State& stato) {
  const Cartella cartella(static_cast<int>(stato.range(0)));
  const auto giudicati = cartella.giudicati();
  const int prove = static_cast<int>(stato.range(1));
  for (auto _ : stato)
    benchmark::DoNotOptimize(confrontaColCaso(giudicati, cartella.archivio, {prove, 1, 0}));
}
BENCHMARK(MilleProve)->Args({100, 1000})->Args({1000, 100})->Unit(benchmark::kMillisecond)->UseRealTime();

/// To be held against Statistica/1000.
void Quadro(benchmark::State& stato) {
  const Cartella cartella(static_cast<int>(stato.range(0)));
  for (auto _ : stato) benchmark::DoNotOptimize(quadroDei(cartella.giudicati(), cartella.archivio));
}
BENCHMARK(Quadro)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void QuadroSenzaAttese(benchmark::State& stato) {
  const Cartella cartella(static_cast<int>(stato.range(0)));
  for (auto _ : stato) benchmark::DoNotOptimize(cartella.giudicati());
}
BENCHMARK(QuadroSenzaAttese)->Arg(1000)->Unit(benchmark::kMillisecond);

void RitardiAmbi(benchmark::State& stato) {
  const Cartella cartella(1);
  for (auto _ : stato)
    benchmark::DoNotOptimize(
        ritardiDi(cartella.archivio, static_cast<int>(stato.range(0)), Sorte::Ambi, {1, cartella.ultima}));
}
BENCHMARK(RitardiAmbi)->Arg(1)->Arg(kTutte)->Unit(benchmark::kMillisecond);

/// The hardest bets there are to count: pairs that leave no two numbers alike, and combinations that have
/// numbers twice.
void ConteggioPeggiore(benchmark::State& stato) {
  Previsione previsione;
  if (stato.range(0) == 0) {
    for (int n = 1; n <= 60; ++n)
      previsione.Ambi.emplace_back(static_cast<std::int16_t>(1 + n * 7 % 90),
                                   static_cast<std::int16_t>(1 + n * n % 89));
  } else {
    auto& combinazione = previsione.Sup.emplace_back();
    for (int n = 0; n < 178; ++n) combinazione.push_back(static_cast<std::int16_t>(1 + n * n % 89));
  }
  const auto giocata = giocataDi(previsione);
  for (auto _ : stato) benchmark::DoNotOptimize(estrazioniSenzaVincita(giocata.suRuota));
}
BENCHMARK(ConteggioPeggiore)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vaticlo
