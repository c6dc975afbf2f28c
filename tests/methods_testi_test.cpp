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

struct Letto {
  const char* nome;
  std::string T::*testo;
  Campo campo;
  std::string scritto;
  Celle celle;           ///< what the field holds then
  std::string mostrato;  ///< how it is shown again
};

void PrintTo(const Letto& caso, std::ostream* dove) { *dove << caso.nome; }

class FieldTextsTaken : public FieldTexts, public testing::WithParamInterface<Letto> {};

TEST_P(FieldTextsTaken, GoIntoTheirCellsAndComeBackInTheirPlainForm) {
  const auto& caso = GetParam();
  EXPECT_EQ(esito(caso.testo, caso.scritto), "");
  EXPECT_EQ(celle(caso.campo, caso.campo == kCampoEstrazione ? 3 : 1), caso.celle);
  EXPECT_EQ(leggiTesti(metodo, 1).*caso.testo, caso.mostrato);
}

INSTANTIATE_TEST_SUITE_P(
    , FieldTextsTaken,
    testing::Values(
        Letto{"number", &T::numero, kCampoEstrazione, " 2559.255.7 ", {255, 9, 255, 7}, "2559.255.07"},
        Letto{"wheels", &T::ruote, kCampoRuote, " ba-TUTTE-Naz-Naz ", {1, 12, 11, 11}, "Ba-Tutte-Naz-Naz"},
        Letto{"colpi", &T::colpi, kCampoColpi, "30", {30}, "30"},
        Letto{"ambate", &T::ambate, kCampoAmbate, "12; 07;255", {12, 7, 255}, "12;7;255"},
        Letto{"ambi", &T::ambi, kCampoAmbi, "12-34;5- 6", {12, 34, 99, 5, 6, 99}, "12-34;5-6"},
        Letto{"groups_not_of_two", &T::ambi, kCampoAmbi, "1-2-3;7;", {1, 2, 3, 99, 7, 99, 99}, "1-2-3;7;"},
        Letto{"no_ambi", &T::ambi, kCampoAmbi, "  ", {}, ""},
        Letto{"combinations",
              &T::sup,
              kCampoSup,
              "15-50-66-71;25",
              {15, 50, 66, 71, 99, 25, 99},
              "15-50-66-71;25"}),
    perNome);

struct Rifiutato {
  const char* nome;
  std::string T::*campo;
  std::string testo, esito;
};

void PrintTo(const Rifiutato& caso, std::ostream* dove) { *dove << caso.nome; }

class FieldTextsRefused : public FieldTexts, public testing::WithParamInterface<Rifiutato> {};

TEST_P(FieldTextsRefused, EndAsTheCellsCannotTakeThem) {
  EXPECT_EQ(esito(GetParam().campo, GetParam().testo), GetParam().esito);
}

const std::string kRuote = "Errore nell'inserimento delle ruote!";

const Rifiutato kRifiutati[] = {{"first_cell_above_a_byte", &T::numero, "2560", "6"},
                                {"negative_number", &T::numero, "-5", "6"},
                                {"group_above_a_byte", &T::numero, "899.256", "6"},
                                {"empty_group", &T::numero, "899..1", "13"},
                                {"no_number", &T::numero, "  ", "9"},
                                {"blanks_between_wheels", &T::ruote, "Ba - Ca", kRuote},
                                {"whole_name", &T::ruote, "Bari", kRuote},
                                {"wheels_end_in_a_hyphen", &T::ruote, "Ba-", kRuote},
                                {"colpi_above_a_byte", &T::colpi, "256", "6"},
                                {"ambate_end_in_a_semicolon", &T::ambate, "12;", "13"},
                                {"negative_ambata", &T::ambate, "-1", "6"},
                                {"two_hyphens", &T::ambi, "5--6", "13"},
                                {"blank_combination", &T::sup, "  ", "13"},
                                {"combination_above_a_byte", &T::sup, "1-300", "6"}};

INSTANTIATE_TEST_SUITE_P(, FieldTextsRefused, testing::ValuesIn(kRifiutati), perNome);

struct Pieno {
  const char* nome;
  std::string T::*campo;
  std::string testo, ancora;  ///< what takes all cells, and what is one too many
  std::string esito;          ///< of both together
};

void PrintTo(const Pieno& caso, std::ostream* dove) { *dove << caso.nome; }

class FieldTextsFull : public FieldTexts, public testing::WithParamInterface<Pieno> {};

TEST_P(FieldTextsFull, FillAllCellsOfAListAndNotOneMore) {
  const auto& [nome, campo, testo, ancora, atteso] = GetParam();
  EXPECT_EQ(esito(campo, testo), "");
  EXPECT_EQ(failureDi([&] { return leggiTesti(metodo, 1); }), 9) << "no end";
  EXPECT_EQ(esito(campo, testo + ancora), atteso);
}

const Pieno kPieni[] = {
    {"ambi", &T::ambi, ripetuto("1-2", 60, ';'), "-3",
     "Il numero degli ambi inseriti supera il limite massimo possibile!"},
    {"combinations", &T::sup, ripetuto(ripetuto("1", 8, '-'), 20, ';'), ";",
     "Il numero delle combinazioni superiori inserite supera il limite massimo possibile!"},
    {"ambate", &T::ambate, ripetuto("1", 180, ';'), ";1", "9"},
    {"wheels", &T::ruote, ripetuto("Ba", 180, '-'), "-Ba", "9"},
    {"number", &T::numero, "899." + ripetuto("1", 176, '.'), ".1", "9"}};

INSTANTIATE_TEST_SUITE_P(, FieldTextsFull, testing::ValuesIn(kPieni), perNome);

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
