#include "archive/importazione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// The message of the error; empty for a text that is taken.
std::string erroreDi(std::string_view testo) {
  try {
    static_cast<void>(importaEstrazioni(testo));
    return "";
  } catch (const ErroreImportazione& errore) {
    return errore.what();
  }
}

TEST(Import, PutsAllLinesOfADateIntoOneDraw) {
  std::string testo =
      "1871/08/19\tRM\t90\t2\t3\t4\t05\n"
      "1939/01/07\tRN\t1\t2\t3\t4\t5\r\n"
      "1939/01/07\tBA\t58\t22\t47\t49\t69\r\n";
  int numero = 0;
  for (const auto* sigla : {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"})
    testo += "2020/02/29\t" + std::string(sigla) + "\t20\t30\t40\t50\t" + std::to_string(++numero) + "\n";
  testo.pop_back();  // the last line may have no end

  const auto a = importaEstrazioni(testo);
  EXPECT_EQ(a.PrimoIndiceLibero(), 4);
  EXPECT_EQ(a.DataEstrazione(1) + " " + a.DataEstrazione(2) + " " + a.DataEstrazione(3),
            "19/8/1871 7/1/1939 29/2/2020");
  const auto cinquina = [&](int i, int j) {
    return std::array<int, 5>{a(i, j, 1), a(i, j, 2), a(i, j, 3), a(i, j, 4), a(i, j, 5)};
  };
  EXPECT_THAT(cinquina(1, 8), ElementsAre(90, 2, 3, 4, 5));
  EXPECT_THAT(cinquina(2, 1), ElementsAre(58, 22, 47, 49, 69));
  EXPECT_THAT(cinquina(2, 8), Each(0));
  for (int ruota = 1; ruota <= 11; ++ruota)
    EXPECT_THAT(cinquina(3, ruota), ElementsAre(20, 30, 40, 50, ruota));
}

TEST(Import, NamesTheLineThatIsWrongAndWhatIsWrongWithIt) {
  const auto prova = [](const std::string& riga, const std::string& motivo) {
    const auto errore = erroreDi("2005/01/01\tBA\t1\t2\t3\t4\t5\n2005/01/05\tBA\t1\t2\t3\t4\t5\n" + riga +
                                 "\n2005/01/04\tXX");
    EXPECT_EQ(errore.substr(0, 8), "riga 3: ") << riga;
    EXPECT_NE(errore.find(motivo), std::string::npos) << errore;
  };
  for (const auto* riga : {"", "2005/01/08\tBA\t1\t2\t3\t4", "2005/01/08\tBA\t1\t2\t3\t4\t5\t6",
                           "2005/01/08 BA 1 2 3 4 5", "8/1/2005\tBA\t1\t2\t3\t4\t5"})
    prova(riga, "attesa la forma");
  for (const std::string data :
       {"2005/02/30", "2005/13/01", "2005/00/01", "2005/0a/01", "2100/01/01", "1799/12/31"})
    prova(data + "\tBA\t1\t2\t3\t4\t5", "\"" + data + "\" non è una data");
  for (const std::string ruota : {"RO", "ca", " BA", ""})
    prova("2005/01/08\t" + ruota + "\t1\t2\t3\t4\t5", "ruota sconosciuta \"" + ruota + "\"");
  for (const std::string numero : {"0", "91", "", "-2", "1a", "300"})
    prova("2005/01/08\tBA\t1\t2\t3\t4\t" + numero, "\"" + numero + "\" non è un numero");
  for (const std::string numeri : {"1\t33\t3\t4\t33", "33\t33\t3\t4\t5"})
    prova("2005/01/08\tBA\t" + numeri, "il numero 33 è ripetuto");
  prova("2005/01/05\tBA\t6\t7\t8\t9\t10", "la ruota BA è ripetuta");
  prova("2005/01/04\tCA\t1\t2\t3\t4\t5", "precedente");
  EXPECT_EQ(erroreDi("").substr(0, 8), "riga 1: ");
}

TEST(Import, TakesTheNewestDrawFirstAndBlanksAtTheEnds) {
  const auto a = importaEstrazioni(
      "\xEF\xBB\xBF"
      "2005/01/12\tRN\t1\t2\t3\t4\t5  \r\n2005/01/12\tBA\t6\t7\t8\t9\t10 \r\n"
      "2005/01/08\tBA\t11\t12\t13\t14\t15\n2005/01/05\tBA\t16\t17\t18\t19\t20 \n \r\n\n");
  EXPECT_EQ(riassunto(a), "3 estrazioni, dal 5/1/2005 al 12/1/2005");
  EXPECT_THAT((Celle{a(1, 1, 1), a(2, 1, 1), a(3, 1, 1), a(3, 11, 5), a(1, 11, 5)}),
              ElementsAre(16, 11, 6, 5, 0));
  EXPECT_EQ(erroreDi("2005/01/12\tBA\t1\t2\t3\t4\t5\n2005/01/08\tBA\t1\t2\t3\t4\t5\n"
                     "2005/01/09\tBA\t1\t2\t3\t4\t5\n"),
            "riga 3: la data è successiva a quella della riga prima");
  EXPECT_EQ(erroreDi(" \r\n\n"), "riga 1: il file è vuoto");
}

TEST(Import, NamesUtf16) {
  const std::string riga = "2005/01/05\tBA\t1\t2\t3\t4\t5\n";
  for (const auto& inizio : {std::string("\xFF\xFE"), std::string("\xFE\xFF"), std::string("2\0", 2)})
    EXPECT_THAT(erroreDi(inizio + riga), HasSubstr("UTF-16"));
}

TEST(Import, QuotesNoMoreOfALineThanAMessageCanShow) {
  EXPECT_EQ(erroreDi("2005/01/08\t\x1B[7m\xFFè" + std::string(2000000, 'x') + "\t1\t2\t3\t4\t5"),
            "riga 1: ruota sconosciuta \"?[7m?è" + std::string(54, 'x') + "…\"");
}

TEST(Import, TakesAsManyDrawsAsLeaveAFreeSlot) {
  std::string testo;
  for (int n = 0; n < 14999; ++n)  // years of twelve months of 28 days, from 1900 on
    testo += std::to_string(1900 + n / 336) + "/" + std::to_string(101 + n / 28 % 12).substr(1) + "/" +
             std::to_string(101 + n % 28).substr(1) + "\tBA\t1\t2\t3\t4\t5\n";
  EXPECT_EQ(importaEstrazioni(testo).PrimoIndiceLibero(), 15000);
  EXPECT_EQ(erroreDi(testo + "2005/01/05\tBA\t1\t2\t3\t4\t5").substr(0, 12), "riga 15000: ");
}

}  // namespace
}  // namespace vaticlo::prova
