#include "methods/testi_campi.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

using T = TestiPrevisione;

/// `volte` times the text, joined by the separator.
std::string ripetuto(const std::string& testo, int volte, char separatore) {
  std::string tutto = testo;
  for (int n = 1; n < volte; ++n) tutto += separatore + testo;
  return tutto;
}

class FieldTexts : public testing::Test {
 protected:
  /// How the save of `testi`, with `testo` in one field, ends: "", its refusal, or the number of its failure.
  std::string esito(std::string T::*campo, const std::string& testo) {
    auto prova = testi;
    prova.*campo = testo;
    try {
      const int numero = failureDi([&] { return scriviTesti(metodo, 1, prova), 0; });
      return numero == 0 ? "" : std::to_string(numero);
    } catch (const RifiutoPrevisione& rifiuto) {
      return rifiuto.what();
    }
  }
  [[nodiscard]] Celle celle(Campo campo, int prima = 1) const {
    Celle trovate;
    for (int pos = prima; metodo(1, campo, pos) != 0; ++pos) trovate.push_back(metodo(1, campo, pos));
    return trovate;
  }

  TestiPrevisione testi{"", "Ba", "10", "", "", ""};
  FileMetodo metodo;
};

TEST_F(FieldTexts, GoIntoTheirCellsAndComeBackInTheirPlainForm) {
  const std::tuple<std::string T::*, Campo, std::string, Celle, std::string> casi[] = {
      {&T::numero, kCampoEstrazione, " 2559.255.7 ", {255, 9, 255, 7}, "2559.255.07"},
      {&T::ruote, kCampoRuote, " ba-TUTTE-Naz-Naz ", {1, 12, 11, 11}, "Ba-Tutte-Naz-Naz"},
      {&T::colpi, kCampoColpi, "30", {30}, "30"},
      {&T::ambate, kCampoAmbate, "12; 07;255", {12, 7, 255}, "12;7;255"},
      {&T::ambi, kCampoAmbi, "12-34;5- 6", {12, 34, 99, 5, 6, 99}, "12-34;5-6"},
      {&T::ambi, kCampoAmbi, "1-2-3;7;", {1, 2, 3, 99, 7, 99, 99}, "1-2-3;7;"},
      {&T::ambi, kCampoAmbi, "  ", {}, ""},
      {&T::sup, kCampoSup, "15-50-66-71;25", {15, 50, 66, 71, 99, 25, 99}, "15-50-66-71;25"}};
  for (const auto& [testo, campo, scritto, attese, letto] : casi) {
    metodo = {};
    EXPECT_EQ(esito(testo, scritto), "") << scritto;
    EXPECT_EQ(celle(campo, campo == kCampoEstrazione ? 3 : 1), attese) << scritto;
    EXPECT_EQ(leggiTesti(metodo, 1).*testo, letto) << scritto;
  }
}

TEST_F(FieldTexts, AreRefusedOrFailWhenTheCellsCannotTakeThem) {
  const std::string ruote = "Errore nell'inserimento delle ruote!";
  const std::tuple<std::string T::*, std::string, std::string> casi[] = {
      {&T::numero, "2560", "6"},    {&T::numero, "-5", "6"},   {&T::numero, "899.256", "6"},
      {&T::numero, "899..1", "13"}, {&T::numero, "  ", "9"},   {&T::ruote, "Ba - Ca", ruote},
      {&T::ruote, "Bari", ruote},   {&T::ruote, "Ba-", ruote}, {&T::colpi, "256", "6"},
      {&T::ambate, "12;", "13"},    {&T::ambate, "-1", "6"},   {&T::ambi, "5--6", "13"},
      {&T::sup, "  ", "13"},        {&T::sup, "1-300", "6"}};
  for (const auto& [campo, testo, atteso] : casi) EXPECT_EQ(esito(campo, testo), atteso) << testo;
}

TEST_F(FieldTexts, FillAllCellsOfAListAndNotOneMore) {
  const std::string ambi = "Il numero degli ambi inseriti supera il limite massimo possibile!";
  const std::string sup =
      "Il numero delle combinazioni superiori inserite supera il limite massimo possibile!";
  // The text that takes all cells, what one more makes of it, and how the save of that ends.
  const std::tuple<std::string T::*, std::string, std::string, std::string> casi[] = {
      {&T::ambi, ripetuto("1-2", 60, ';'), "-3", ambi},
      {&T::sup, ripetuto(ripetuto("1", 8, '-'), 20, ';'), ";", sup},
      {&T::ambate, ripetuto("1", 180, ';'), ";1", "9"},
      {&T::ruote, ripetuto("Ba", 180, '-'), "-Ba", "9"},
      {&T::numero, "899." + ripetuto("1", 176, '.'), ".1", "9"}};
  for (const auto& [campo, testo, ancora, atteso] : casi) {
    metodo = {};
    EXPECT_EQ(esito(campo, testo), "") << testo;
    EXPECT_EQ(failureDi([&] { return leggiTesti(metodo, 1); }), 9) << "no end: " << testo;
    EXPECT_EQ(esito(campo, testo + ancora), atteso) << testo;
  }
}

TEST_F(FieldTexts, OfADrawRoundTheCenturyAndFailForYearsThatGoBelowIt) {
  const auto data = [](int anno) { return dataDaTesto("12/3/" + std::to_string(anno)).value(); };
  const std::array<int, 3> casi[] = {{2005, 20, 5}, {1949, 19, 49}, {2050, 20, 50}, {1850, 18, 50}};
  for (const auto& [anno, secolo, resto] : casi) {
    scriviEstrazione(metodo, 1, 5432, data(anno));
    EXPECT_EQ(celle(kCampoEstrazione), (Celle{54, 32}));
    EXPECT_EQ((Celle{metodo(1, kCampoData, 1), metodo(1, kCampoData, 2)}), (Celle{12, 3}));
    EXPECT_EQ((Celle{metodo(1, kCampoData, 3), metodo(1, kCampoData, 4)}), (Celle{secolo, resto}));
  }
  for (const int anno : {1950, 1999, 2051})
    EXPECT_EQ(failureDi([&] { return scriviEstrazione(metodo, 1, 5432, data(anno)), 0; }), 6) << anno;
}

}  // namespace
}  // namespace vaticlo::prova
