#include "archive/archivio.h"
#include "archive/data.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(ArchiveFile, HoldsEachCellAtItsPlaceAmongTheStripsOfAllDraws) {
  const ProgrammaProva p;
  for (const auto& [i, j, k, posto] :
       {std::array{1, 0, 1, 0}, {5, 0, 4, 540004}, {7, 11, 3, 525006}, {15000, 11, 5, 899999}}) {
    ArchivioEstrazioni archivio;
    archivio(i, j, k) = 77;
    ScriviArchivio(p.cartella(), archivio);
    std::string attesi(900000, '\0');
    attesi[static_cast<std::size_t>(posto)] = 77;
    EXPECT_TRUE(p.contenuto("archivion71.dat") == attesi) << posto;
    EXPECT_EQ(std::as_const(archivio)(i, j, k), ApriArchivio(p.cartella())(i, j, k));
  }
}

TEST(ArchiveGrid, EndsAtTheFirstDayOfZeroWhateverStandsBehindIt) {
  const ProgrammaProva p;
  EXPECT_EQ(ApriArchivio(p.cartella()).PrimoIndiceLibero(), 1);
  EXPECT_TRUE(p.esiste("archivion71.dat"));
  EXPECT_EQ(p.contenuto("archivion71.dat"), "");

  ArchivioProva archivio(14999);
  EXPECT_EQ(archivio.griglia.PrimoIndiceLibero(), 15000);
  archivio.data(3, 0, 3, 2005);
  EXPECT_EQ(archivio.griglia.PrimoIndiceLibero(), 3);
}

TEST(ArchiveGrid, GivesTheDateOfADrawWithoutLeadingZerosButInTheYear) {
  ArchivioProva a(0);
  a.data(1, 5, 3, 2000).data(2, 31, 12, 2010).data(3, 9, 9, 1909);
  const char* attese[] = {"5/3/2000", "31/12/2010", "9/9/1909", "0/0/000"};
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(a.griglia.DataEstrazione(i), attese[i - 1]);
  EXPECT_EQ(failureDi([&] { return a.griglia.DataEstrazione(15001); }), 9);
  for (const auto& fuori : {std::array{0, 0, 1}, {15001, 0, 1}, {1, -1, 1}, {1, 12, 1}, {1, 0, 0}, {1, 0, 6}})
    EXPECT_EQ(failureDi([&] { return a.griglia(fuori[0], fuori[1], fuori[2]); }), 9);
}

TEST(Dates, AreReadInTheFormsOfThisCountryAndOnlyForDaysThatExist) {
  const std::vector<std::pair<std::string, std::array<int, 3>>> casi = {
      {"12/05/2004", {12, 5, 2004}}, {"3-3-1946", {3, 3, 1946}},  {" 1.12.04 ", {1, 12, 2004}},
      {"1/1/29", {1, 1, 2029}},      {"1/1/30", {1, 1, 1930}},    {"1/1/00", {1, 1, 2000}},
      {"29/2/2000", {29, 2, 2000}},  {"29/2-1996", {29, 2, 1996}}};
  for (const auto& [testo, attesa] : casi) {
    const auto data = dataDaTesto(testo);
    ASSERT_TRUE(data) << testo;
    EXPECT_EQ((std::array{giorno(*data), mese(*data), anno(*data)}), attesa) << testo;
  }
  for (const auto* testo :
       {"", "0/0/000", "29/2/1900", "31/4/2005", "1/13/2005", "0/1/2005", "1/0/2005", "5/2004", "1/2/3/2004",
        "001/1/2005", "1/1/205", "1/1/5", "a/1/2005", "1 /1/2005", "2005/1/1"})
    EXPECT_FALSE(dataDaTesto(testo)) << testo;
}

TEST(Dates, AreTypedIntoAPickerInThoseFormsOrInSixOrEightDigits) {
  const Data febbraio = dataDaTesto("29/02/2004").value();
  for (const auto* testo : {"29/2/2004", "29-2-04", "29.02.2004", "29022004", " 290204 "})
    EXPECT_EQ(dataDigitata(testo), febbraio) << testo;
  for (const auto* testo : {"", "29022003", "31/4/2004", "2922004", "290220040", "29 02 04", "2902/2004"})
    EXPECT_EQ(dataDigitata(testo), std::nullopt) << testo;
}

}  // namespace
}  // namespace vaticlo::prova
