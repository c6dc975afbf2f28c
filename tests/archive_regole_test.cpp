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

struct Ambata {
  const char* nome;
  int numero, ruota, estrazione;
  bool uscita;
};

void PrintTo(const Ambata& caso, std::ostream* dove) { *dove << caso.nome; }

class AmbataOut : public HitRules, public testing::WithParamInterface<Ambata> {};

TEST_P(AmbataOut, IsAnyCellOfItsRowAZeroAndTheDateIncluded) {
  const auto& caso = GetParam();
  EXPECT_EQ(regole.ambata(caso.numero, caso.ruota, caso.estrazione), caso.uscita);
}

INSTANTIATE_TEST_SUITE_P(
    , AmbataOut,
    testing::Values(Ambata{"drawn", 50, 1, 2, true}, Ambata{"no_number_of_the_game", 255, 6, 2, true},
                    Ambata{"zero_of_cells_not_set", 0, 11, 2, true}, Ambata{"zero_of_no_draw", 0, 1, 1, true},
                    Ambata{"day", 12, 0, 2, true}, Ambata{"on_another_wheel", 7, 1, 2, false},
                    Ambata{"in_another_draw", 10, 1, 1, false}, Ambata{"zero_of_a_full_row", 0, 1, 2, false},
                    Ambata{"not_in_the_date", 10, 0, 2, false}),
    perNome);

TEST_F(HitRules, AnAmbataOutsideTheGridFails) {
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
