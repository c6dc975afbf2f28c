#include <filesystem>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "cartella_grande.h"
#include "check/clsmetodo.h"
#include "console/servizi_console.h"
#include "platform/file_intero.h"
#include "statistics/clsstatistica.h"

namespace vaticlo {
namespace {

constexpr int kEstrazioni = 7270;

class CorsaMuta : public PannelloCorsa {
 public:
  [[nodiscard]] SceltaMetodo scelta() const override { return {}; }
  void prgbar_Value(int /*valore*/) override {}
  void prgbar_Max(int /*massimo*/) override {}
  void corsaIniziata() override {}
  void corsaInterrotta() override {}
};

/// A made folder with that many methods, gone with the object.
class Cartella {
 public:
  explicit Cartella(int metodi)
      : programma(std::filesystem::temp_directory_path() / ("vaticlo-bench-" + std::to_string(::getpid())),
                  servizi) {
    creaCartellaGrande(programma.cartella, kEstrazioni, metodi);
    programma.globals.apriSullUltima(kEstrazioni + 1);
    programma.globals.UltimaEstrazione16 = kEstrazioni;
    programma.globals.MetodoScelto = 1;
  }
  Cartella(const Cartella&) = delete;
  Cartella& operator=(const Cartella&) = delete;
  ~Cartella() { std::filesystem::remove_all(programma.cartella.radice()); }

  ServiziConsole servizi;
  Programma programma;
};

void LetturaDeiFile(benchmark::State& stato) {
  Cartella cartella(static_cast<int>(stato.range(0)));
  for (auto _ : stato) {
    benchmark::DoNotOptimize(ApriArchivio(cartella.programma.cartella));
    for (const auto& nome : CaricaElencoMetodi(cartella.programma.cartella, {}))
      benchmark::DoNotOptimize(LeggiMetodo(cartella.programma.cartella, nome));
  }
}
BENCHMARK(LetturaDeiFile)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void Verifica(benchmark::State& stato) {
  Cartella cartella(static_cast<int>(stato.range(0)));
  int n = 101;
  for (auto _ : stato) {
    cartella.programma.globals.mostra(n);
    clsMetodo controllo(cartella.programma, {{}, std::to_string(n)});
    controllo.ricerca(n);
    controllo.rilascia();
    n = n < kEstrazioni ? n + 1 : 101;
  }
}
BENCHMARK(Verifica)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

// Draws + predictions: the time must grow no faster than the number of methods.
void Statistica(benchmark::State& stato) {
  Cartella cartella(static_cast<int>(stato.range(0)));
  CorsaMuta corsa;
  for (auto _ : stato) {
    clsStatistica statistica(cartella.programma, corsa);
    statistica.Inizia(1, kEstrazioni);
    statistica.rilascia();
  }
}
BENCHMARK(Statistica)->Arg(100)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);

void GiudizioDiUnColpo(benchmark::State& stato) {
  Cartella cartella(1);
  const auto archivio = ApriArchivio(cartella.programma.cartella);
  const RegoleVincita regole(archivio);
  struct Conta : EsitoColpo {
    int vincite = 0;
    void ambata(int, int) override { ++vincite; }
    void ambo(int, int, int) override { ++vincite; }
    void amboTutte(int, int, int) override { ++vincite; }
    void sorte(const std::vector<int>&, int) override { ++vincite; }
  } conta;
  Previsione previsione;
  previsione.Ruote = {1, 2, 11};
  previsione.Tutte = true;
  previsione.Ambate = {12, 34};
  previsione.Ambi = {{12, 34}, {5, 6}};
  previsione.Sup = {{1, 2, 3, 4}};
  int d = 1;
  for (auto _ : stato) {
    giudicaColpo(previsione, regole, d, FlagTutte::OgniRuota, conta);
    d = d < kEstrazioni ? d + 1 : 1;
  }
  benchmark::DoNotOptimize(conta.vincite);
}
BENCHMARK(GiudizioDiUnColpo);

}  // namespace
}  // namespace vaticlo
