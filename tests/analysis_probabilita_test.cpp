#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "analysis/conteggio.h"
#include "analysis/estrazioni_a_caso.h"
#include "analysis/piano_di_gioco.h"
#include "analysis/prove.h"
#include "methods/giudizio.h"
#include "sostegno/logica.h"
#include "statistics/giudizio_statistica.h"

namespace vaticlo::prova {
namespace {

struct Nessuno : EsitoColpo {
  void ambata(int, int) override {}
  void ambo(int, int, int) override {}
  void amboTutte(int, int, int) override {}
  void sorte(const std::vector<int>&, int) override {}
};

/// An archive in which every wheel but the Nazionale was drawn in each of the draws.
ArchivioEstrazioni archivioPieno(int ultima) {
  ArchivioProva archivio(ultima);
  for (int d = 1; d <= ultima; ++d)
    for (int ruota = 1; ruota <= 10; ++ruota) archivio.ruota(d, ruota, {90});
  return std::move(archivio.griglia);
}

Previsione previsione(std::vector<int> ruote, int colpi, std::vector<std::uint8_t> ambate = {},
                      std::vector<std::pair<std::int16_t, std::int16_t>> ambi = {},
                      std::vector<std::vector<std::int16_t>> sup = {}, bool tutte = false) {
  Previsione p;
  p.EstrazioneCalcolo = 1;
  p.Colpi = static_cast<std::uint8_t>(colpi);
  p.Ruote = std::move(ruote);
  p.Ambate = std::move(ambate);
  p.Ambi = std::move(ambi);
  p.Sup = std::move(sup);
  p.Tutte = tutte;
  return p;
}

double probabilita(const Previsione& p, const ArchivioEstrazioni& archivio) {
  const auto perColpo = probabilitaPerColpo(pianoDi(p, archivio), ruoteEstratte(archivio));
  return std::accumulate(perColpo.begin(), perColpo.end(), 0.0);
}

TEST(Probabilita, WorkedOutByHand) {
  const auto archivio = archivioPieno(9);
  std::vector<std::int16_t> tutti(90);
  std::iota(tutti.begin(), tutti.end(), std::int16_t{1});
  auto ripetuto = tutti;  // all five of the ninety with 1 among them give six places, which win nothing
  ripetuto.push_back(1);
  const double cinquine = 43949268;
  const std::tuple<const char*, Previsione, double> casi[] = {
      {"ambata", previsione({1}, 1, {7, 7, 95}), 1.0 / 18},
      {"two ambate", previsione({1}, 1, {7, 8}), 1 - (85.0 * 84) / (90 * 89)},
      {"ambo", previsione({1}, 1, {}, {{7, 8}, {7, 0}}), 2.0 / 801},
      {"an ambo of one number twice", previsione({1}, 1, {}, {{7, 7}}), 1.0 / 18},
      {"two or three of a combination of three", previsione({1}, 1, {}, {}, {{1, 2, 3}}),
       (3 * 109736 - 2 * 3741) / cinquine},
      {"a combination of all numbers", previsione({1}, 1, {}, {}, {tutti}), 1},
      {"the same with a number twice", previsione({1}, 1, {}, {}, {ripetuto}), 1 - 2441626 / cinquine},
      {"ambo on all wheels, ten of them drawn", previsione({1}, 1, {}, {{7, 8}}, {}, true),
       1 - std::pow(799.0 / 801, 10)},
      {"a wheel that was not drawn", previsione({11}, 1, {7}), 0},
      {"eight colpi", previsione({1}, 8, {7}), 1 - std::pow(17.0 / 18, 8)},
      {"no colpo", previsione({1}, 0, {7}), 0},
      {"two wheels, one of them twice", previsione({1, 2, 2}, 1, {7}), 1 - std::pow(17.0 / 18, 2)},
      {"the date, which is not drawn", previsione({0}, 5, {12}), 1}};
  for (const auto& [nome, p, attesa] : casi) EXPECT_NEAR(probabilita(p, archivio), attesa, 1e-12) << nome;
}

/// Bets over few numbers, some of them in no urn, with repetitions of every kind.
Previsione casuale(std::mt19937& caso, std::vector<int> ruote, int colpi) {
  const auto da = [&caso](int minimo, int massimo) {
    return minimo + static_cast<int>(caso() % static_cast<unsigned>(massimo - minimo + 1));
  };
  const auto numero = [&] { return static_cast<std::int16_t>(da(0, 30) == 0 ? 95 : da(1, 14)); };
  auto p = previsione(std::move(ruote), colpi);
  p.Tutte = da(0, 1) == 1;
  for (int n = da(0, 3) - 2; n > 0; --n) p.Ambate.push_back(static_cast<std::uint8_t>(numero()));
  for (int n = da(0, 3); n > 0; --n)
    p.Ambi.emplace_back(numero(), da(0, 9) == 0 ? std::int16_t{0} : numero());
  for (int n = da(0, 2); n > 0; --n) {
    auto& combinazione = p.Sup.emplace_back();
    for (int posti = da(1, 9); posti > 0; --posti) combinazione.push_back(numero());
    if (da(0, 2) == 0) combinazione.insert(combinazione.end(), static_cast<std::size_t>(da(1, 6)), numero());
  }
  return p;
}

TEST(Probabilita, CountsWhatTheJudgeFindsInEverySetOfASmallUrn) {
  constexpr int kUrna = 11;
  // Every set of five of the urn comes out on Bari in a draw of its own.
  std::vector<std::vector<int>> insiemi;
  for (unsigned maschera = 0; maschera < 1U << kUrna; ++maschera) {
    std::vector<int> numeri;
    for (int n = 1; n <= kUrna; ++n)
      if (maschera >> (n - 1) & 1U) numeri.push_back(n);
    if (numeri.size() == 5) insiemi.push_back(numeri);
  }
  ASSERT_EQ(insiemi.size(), 462U);
  ArchivioProva archivio(462);
  std::vector<InsiemeNumeri> estratti(462);
  for (std::size_t i = 0; i < insiemi.size(); ++i) {
    archivio.ruota(static_cast<int>(i) + 1, 1, insiemi[i]);
    for (const int n : insiemi[i]) estratti[i].aggiungi(n);
  }
  const RegoleVincita regole(archivio.griglia);
  Nessuno nessuno;
  std::mt19937 caso(90);
  for (int volta = 0; volta < 400; ++volta) {
    for (const int ruota : {1, 2}) {  // a wheel of play, and another one
      const auto p = casuale(caso, {ruota}, 1);
      const auto giocata = giocataDi(p);
      const auto& suBari = ruota == 1 ? giocata.suRuota : giocata.altrove;
      std::uint64_t senza = 0;
      int diverse = 0;
      for (std::size_t i = 0; i < insiemi.size(); ++i) {
        const bool vince = giudicaColpo(p, regole, static_cast<int>(i) + 1, FlagTutte::OgniRuota, nessuno);
        senza += vince ? 0 : 1;
        diverse += vince != suBari.vince(estratti[i]) ? 1 : 0;
      }
      EXPECT_EQ(diverse, 0) << volta;
      EXPECT_EQ(estrazioniSenzaVincita(suBari, kUrna), senza) << volta;
    }
  }
}

TEST(EstrazioniACaso, GiveEveryNumberAndEveryPairTheSameChance) {
  constexpr int kVolte = 40000;
  std::array<int, 91> usciti{};
  int coppie = 0;
  for (int d = 1; d <= kVolte; ++d) {
    const auto estratti = EstrazioniACaso(7, d % 3).estratti(d, 1 + d % 11);
    ASSERT_EQ(estratti.quanti(), 5);
    estratti.perOgni([&](int n) { ++usciti.at(static_cast<std::size_t>(n)); });
    coppie += estratti.contiene(89) && estratti.contiene(90) ? 1 : 0;
  }
  const double attesi = kVolte / 18.0, scarto = std::sqrt(attesi * 17 / 18);
  EXPECT_EQ(usciti[0], 0);
  for (std::size_t n = 1; n <= 90; ++n) EXPECT_NEAR(usciti[n], attesi, 4.5 * scarto) << n;
  EXPECT_NEAR(coppie, kVolte * 2.0 / 801, 4.5 * std::sqrt(kVolte * 2.0 / 801));
}

TEST(Prove, ARunIsJudgedAsTheRealJudgeWouldJudgeItsArchive) {
  constexpr int kUltima = 12;
  auto vero = archivioPieno(kUltima);
  const auto ruote = ruoteEstratte(vero);
  std::mt19937 generatore(5);
  Nessuno nessuno;
  for (int prova = 0; prova < 300; ++prova) {
    const EstrazioniACaso caso(3, prova);
    auto archivio = archivioPieno(kUltima);
    for (int d = 1; d <= kUltima; ++d)
      for (int ruota = 1; ruota <= 10; ++ruota) {
        int k = 1;
        caso.estratti(d, ruota).perOgni(
            [&](int n) { archivio(d, ruota, k++) = static_cast<std::uint8_t>(n); });
      }
    const RegoleVincita regole(archivio);
    const std::vector<int> scelte[] = {{1}, {2, 11}, {0, 3, 3}, {11}};
    for (const auto& scelta : scelte) {
      const auto p = casuale(generatore, scelta, 10);
      EXPECT_EQ(colpoVincente(pianoDi(p, vero), ruote, 3, prova),
                giudicaPrevisione(p, regole, kUltima, nessuno).colpo)
          << prova;
    }
  }
}

/// Forty ambate of one colpo each, every one on a draw of its own, in two groups.
struct Ambate {
  Ambate() : archivio(archivioPieno(60)), ruote(ruoteEstratte(archivio)), gruppi(2) {
    for (int n = 1; n <= 40; ++n) {
      auto p = previsione({1, 2, 3}, 1, {static_cast<std::uint8_t>(n)});
      p.EstrazioneCalcolo = static_cast<std::int16_t>(n);
      gruppi[n <= 10 ? 0 : 1].piani.push_back(pianoDi(p, archivio));
    }
  }
  [[nodiscard]] RisultatoProve prova(const OpzioniProve& opzioni) const {
    return provaIlCaso(gruppi, ruote, opzioni);
  }
  ArchivioEstrazioni archivio;
  RuoteEstratte ruote;
  std::vector<GruppoGiocato> gruppi;
};

bool uguali(const EsitoProve& a, const EsitoProve& b) {
  return a.vincenti == b.vincenti && a.andamento == b.andamento;
}

TEST(Prove, TheWinnersOfEachRunAreCounted) {
  const Ambate ambate;
  const auto risultato = ambate.prova({300, 11, 0});
  auto attesi = std::vector<std::uint32_t>(risultato.insieme.vincenti.size());
  for (int prova = 0; prova < 300; ++prova) {
    std::size_t vincenti = 0;
    for (const auto& gruppo : ambate.gruppi)
      for (const auto& piano : gruppo.piani)
        vincenti += colpoVincente(piano, ambate.ruote, 11, prova) > 0 ? 1 : 0;
    ++attesi.at(vincenti);
  }
  EXPECT_EQ(risultato.insieme.vincenti, attesi);
  EXPECT_EQ(risultato.insieme.andamento.back(), attesi);
  EXPECT_EQ(risultato.asse.passi(), 40);
}

TEST(Prove, TheSeedAloneDecidesAndAStopKeepsWhatIsThere) {
  const Ambate ambate;
  const auto uno = ambate.prova({200, 5, 1}), quattro = ambate.prova({200, 5, 4}),
             altro = ambate.prova({200, 6, 1});
  EXPECT_TRUE(uguali(uno.insieme, quattro.insieme));
  EXPECT_TRUE(uguali(uno.gruppi[1], quattro.gruppi[1]));
  EXPECT_FALSE(uguali(uno.insieme, altro.insieme));

  std::stop_source fermata;
  const auto fermato =
      provaIlCaso(ambate.gruppi, ambate.ruote, {1 << 30, 5, 3}, fermata.get_token(), [&](int fatte) {
        if (fatte > 0) fermata.request_stop();
      });
  ASSERT_GT(fermato.prove, 0);
  EXPECT_TRUE(uguali(fermato.insieme, ambate.prova({fermato.prove, 5, 2}).insieme));
  EXPECT_EQ(std::accumulate(fermato.insieme.vincenti.begin(), fermato.insieme.vincenti.end(), 0U),
            static_cast<unsigned>(fermato.prove));
}

}  // namespace
}  // namespace vaticlo::prova
