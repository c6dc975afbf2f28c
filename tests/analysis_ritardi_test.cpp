#include <cmath>

#include "analysis/caso_ritardi.h"
#include "archive/ruota.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// "frequency delay longest" of a number or a pair.
std::string riga(const Ritardi& ritardi, int numero, int altro = 0) {
  for (const auto& r : ritardi.righe)
    if (r.numero == numero && r.altro == altro)
      return std::to_string(r.frequenza) + " " + std::to_string(r.ritardo) + " " +
             std::to_string(r.ritardoMassimo);
  return "none";
}

TEST(Ritardi, CountTheDrawsThatHaveTheWheel) {
  // Bari is drawn in 2, 4, 5, 7 and 8, Cagliari in 5, 6 and 8.
  const auto archivio =
      archivioDi(9,
                 "2 Ba 1 2 3 4 5,4 Ba 6 7 8 9 10,5 Ba 1 2 11 12 13,7 Ba 6 14 15 16 17,"
                 "8 Ba 18 19 20 21 22,5 Ca 1 30 31 32 33,6 Ca 2 1 34 35 36,8 Ca 18 40 41 42 43")
          .griglia;
  const auto bari = ritardiDi(archivio, 1, Sorte::Numeri, {1, 9});
  EXPECT_THAT(bari.ruote, ElementsAre(1, 1, 1, 1, 1));
  EXPECT_EQ(riga(bari, 1), "2 2 2");
  EXPECT_EQ(riga(bari, 6), "2 1 1");
  EXPECT_EQ(riga(bari, 4), "1 4 4");
  EXPECT_EQ(riga(bari, 18), "1 0 4") << "the first run counts";
  EXPECT_EQ(riga(bari, 90), "0 5 5");
  EXPECT_EQ(bari.righe.size(), 90U);
  EXPECT_EQ(bari.righe.front().numero, 23) << "the longest delay first, then by number";
  EXPECT_EQ(bari.righe.back().numero, 22);

  const auto tutte = ritardiDi(archivio, kTutte, Sorte::Numeri, {4, 100});
  EXPECT_THAT(tutte.ruote, ElementsAre(1, 2, 1, 1, 2));
  EXPECT_EQ(riga(tutte, 1), "3 2 2") << "two wheels of one draw are two times and one appearance";
  EXPECT_EQ(riga(tutte, 18), "2 0 4");
  const auto ambi = ritardiDi(archivio, kTutte, Sorte::Ambi, {-5, 9});
  EXPECT_EQ(ambi.righe.size(), 4005U);
  EXPECT_EQ(riga(ambi, 1, 2), "3 2 2");
  EXPECT_EQ(riga(ambi, 1, 18), "0 6 6") << "on one wheel, not in one draw";
  EXPECT_EQ(riga(ritardiDi(archivio, 3, Sorte::Numeri, {1, 9}), 1), "0 0 0");
}

/// Draws that count, with so many wheels each.
Ritardi corsa(std::vector<int> ruote) { return {std::move(ruote), std::vector<RigaRitardi>(90)}; }

TEST(CasoDeiRitardi, GivesWhatTheWheelsDrawnAllow) {
  const double q = 17.0 / 18;
  const CasoDeiRitardi caso(corsa({1, 1, 3}), Sorte::Numeri);
  EXPECT_NEAR(caso.frequenzaAttesa(), 5.0 / 18, 1e-12);
  EXPECT_NEAR(caso.probabilitaRitardo(0), 1, 1e-12);
  EXPECT_NEAR(caso.probabilitaRitardo(2), std::pow(q, 4), 1e-12);
  EXPECT_EQ(caso.probabilitaRitardo(4), 0);
  EXPECT_NEAR(CasoDeiRitardi(corsa({1}), Sorte::Ambi).frequenzaAttesa(), 2.0 / 801, 1e-12);

  // The longest delay against all 2^12 courses of presence and absence.
  const std::vector<int> ruote = {1, 2, 1, 1, 4, 1, 1, 3, 1, 1, 2, 1};
  const CasoDeiRitardi dodici(corsa(ruote), Sorte::Numeri);
  std::array<double, 14> almeno{};
  for (unsigned corso = 0; corso < 1U << 12; ++corso) {
    double probabilita = 1;
    std::size_t lungo = 0, massimo = 0;
    for (std::size_t d = 0; d < ruote.size(); ++d) {
      const bool manca = (corso >> d & 1U) != 0;
      const double assenza = std::pow(q, ruote[d]);
      probabilita *= manca ? assenza : 1 - assenza;
      lungo = manca ? lungo + 1 : 0;
      massimo = std::max(massimo, lungo);
    }
    for (std::size_t n = 0; n <= massimo; ++n) almeno.at(n) += probabilita;
  }
  for (std::size_t n = 0; n < almeno.size(); ++n)
    EXPECT_NEAR(dodici.probabilitaRitardoMassimo(static_cast<int>(n)), almeno.at(n), 1e-12) << n;

  const CasoDeiRitardi lunga(corsa(std::vector<int>(2000, 1)), Sorte::Numeri);
  const int mediano = lunga.ritardoMassimoMediano();
  EXPECT_LE(std::pow(1 - lunga.probabilitaRitardoMassimo(mediano), 90), 0.5);
  EXPECT_GT(std::pow(1 - lunga.probabilitaRitardoMassimo(mediano + 1), 90), 0.5);
}

}  // namespace
}  // namespace vaticlo::prova
