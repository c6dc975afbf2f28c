#include "archive/regole.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class HitRules : public testing::Test {
 protected:
  HitRules() {
    archivio.ruota(2, 1, {10, 20, 30, 40, 50}).ruota(2, 6, {50, 7, 90, 10, 255}).ruota(2, 11, {10, 50});
  }
  [[nodiscard]] std::vector<int> ambo(int a, int b) const {
    std::vector<int> ruote;
    for (const int ruota : regole.ambo(a, b, 2)) ruote.push_back(ruota);
    return ruote;
  }
  [[nodiscard]] std::vector<int> sorte(const std::vector<std::int16_t>& numeri, int ruota) const {
    return regole.sorte(numeri, ruota, 2);
  }

  // Draws of 12/3/2005; the wheels that nothing sets hold no number.
  ArchivioProva archivio{3};
  RegoleVincita regole{archivio.griglia};
};

TEST_F(HitRules, AnAmbataIsAnyCellOfItsRowAZeroAndTheDateIncluded) {
  const std::tuple<int, int, int, bool> casi[] = {{50, 1, 2, true},  {255, 6, 2, true}, {0, 11, 2, true},
                                                  {0, 1, 1, true},   {12, 0, 2, true},  {7, 1, 2, false},
                                                  {10, 1, 1, false}, {0, 1, 2, false},  {10, 0, 2, false}};
  for (const auto& [numero, ruota, estrazione, uscita] : casi)
    EXPECT_EQ(regole.ambata(numero, ruota, estrazione), uscita) << numero << " on " << ruota;
  for (const int ruota : {-1, 12}) EXPECT_EQ(failureDi([&] { return regole.ambata(1, ruota, 2); }), 9);
  for (const int estrazione : {0, 15001})
    EXPECT_EQ(failureDi([&] { return regole.ambata(1, 1, estrazione); }), 9) << estrazione;
}

TEST_F(HitRules, AnAmboIsOnEveryWheelThatHasBothNumbersNazionaleIncluded) {
  EXPECT_THAT(ambo(10, 50), ElementsAre(1, 6, 11));
  EXPECT_THAT(ambo(7, 7), ElementsAre(6));
  EXPECT_THAT(ambo(20, 90), IsEmpty());  // on two different wheels
  EXPECT_THAT(ambo(12, 3), IsEmpty());   // the date is no wheel of an ambo
}

TEST_F(HitRules, ASorteGivesTheNumbersFoundInTheOrderOfTheCombination) {
  EXPECT_THAT(sorte({50, 9, 10, 30}, 1), ElementsAre(50, 10, 30));
  EXPECT_THAT(sorte({10, 10, 50}, 11), ElementsAre(10, 10, 50));
  EXPECT_THAT(sorte({12, 3}, 0), IsEmpty());
  EXPECT_THAT(sorte({10, 20}, 12), IsEmpty());
}

}  // namespace
}  // namespace vaticlo::prova
