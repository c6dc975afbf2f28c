#include <set>

#include "platform/conversione.h"
#include "platform/pagina_codici.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

using Tavola = std::vector<std::pair<std::string, std::vector<std::string>>>;

/// Converts each text of each line and compares with the number, or the failure, in front of the line.
template <class Converti>
void confronta(const Tavola& tavola, Converti converti) {
  for (const auto& [atteso, testi] : tavola)
    for (const auto& testo : testi) {
      std::string esito;
      const int failure = failureDi([&] { return esito = std::to_string(converti(testo)); });
      EXPECT_EQ(failure == 0 ? esito : "failure " + std::to_string(failure), atteso) << '"' << testo << '"';
    }
}

TEST(Conversion, RoundsATextHalfToEvenAndTellsNoNumberFromOutOfRange) {
  const std::string enorme = "1" + std::string(400, '0'), minimo = "0," + std::string(400, '0') + "1";
  confronta(
      {{"0", {"0", "0,5", "-0,5", minimo}},
       {"14", {"14", "+14", " 014 ", "13,5", "14,5", "14,49"}},
       {"254", {"254,5"}},
       {"failure 6", {"256", "255,5", "-1", "-0,51", enorme}},
       {"failure 13", {"", "  ", "a", "1 2", "1.5", "1e1", "0x1", "--1", "-", "\t5", "1,2,3", "5;", ",5"}}},
      inByte);
  confronta({{"32767", {"32767", "32767,4"}},
             {"32766", {"32766,5"}},
             {"-32768", {"-32768", "-32768,5"}},
             {"-2", {"-1,5", "-2,5"}},
             {"failure 6", {"32768", "32767,5", "-32769", enorme}},
             {"failure 13", {"1/2", ""}}},
            inIntero16);
  EXPECT_EQ(interoTra("7,0", 7, 7), 7);
  EXPECT_EQ(interoTra("0,0000000000000001", 0, 7), std::nullopt) << "not whole, however little";
}

TEST(Conversion, WritesARoundedNumberWithFifteenDigitsAndAComma) {
  for (const auto& [valore, testo] : {std::pair{arrotonda(1.0 / 80, 3), "0,012"},
                                      {arrotonda(3.0 / 80, 3), "0,038"},
                                      {2.0 / 3, "0,666666666666667"},
                                      {0.1 + 0.2, "0,3"},
                                      {-12.5, "-12,5"},
                                      {1200, "1200"}})
    EXPECT_EQ(testoDiNumero(valore), testo);
}

TEST(Failures, HaveEachATextOfItsOwn) {
  std::set<std::string> testi = {descrizione(Errore{})};
  for (const int numero : {5, 6, 9, 11, 13, 14, 51, 52, 53, 57, 58, 61, 70, 75, 76, 340, 380})
    EXPECT_TRUE(testi.insert(descrizione(static_cast<Errore>(numero))).second) << numero;
}

TEST(CodePage, GivesEveryDefinedByteBackAndHasAQuestionMarkForAllElse) {
  EXPECT_EQ(daPagina("\x80 \xE0 \xB0 \x9C \x91\x92 \x93\x94 \x85 \x96\x97"), "€ à ° œ ‘’ “” … –—");
  std::string pagina = "> ";
  aggiungiInPagina(pagina, "2° a漢b 😀 \u0081 a\xFF b\xC3");
  EXPECT_EQ(pagina, "> 2\xB0 a?b ? ? a? b?");
  for (int n = 0; n < 256; ++n) {
    const std::string ottetto(1, static_cast<char>(n));
    const bool definito = std::string("\x81\x8D\x8F\x90\x9D").find(ottetto) == std::string::npos;
    std::string ritorno;
    aggiungiInPagina(ritorno, daPagina(ottetto));
    EXPECT_EQ(ritorno, definito ? ottetto : "?") << n;
  }
}

}  // namespace
}  // namespace vaticlo::prova
