#include "platform/tabella.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(Tabella, FieldsThatWouldBreakALineAreGuarded) {
  const Tabella tabella{{{"uno;due"}, {"tre"}},
                        {{std::string("a \"b\"\tc"), 1}, {std::string("d\ne"), 2.5}, {{}, -0.25}}};
  EXPECT_EQ(testoCsv(tabella), "\"uno;due\";tre\r\n\"a \"\"b\"\"\tc\";1\r\n\"d\ne\";2,5\r\n;-0,25\r\n");
  EXPECT_EQ(testoDaIncollare(tabella), "uno;due\ttre\na \"b\" c\t1\nd e\t2,5\n\t-0,25\n");
}

TEST(Tabella, NumbersOfAColumnHaveTheSameDecimals) {
  const Colonna colonna{"Quota", Colonna::Tipo::Numero, 2};
  std::string testi;
  for (const Cella& cella : {Cella{}, Cella{7}, Cella{-0.5}, Cella{1.25}, Cella{std::string("12")}})
    testi += testoCella(cella, colonna) + "|";
  EXPECT_EQ(testi, "|7,00|-0,50|1,25|12|");
}

}  // namespace
}  // namespace vaticlo::prova
