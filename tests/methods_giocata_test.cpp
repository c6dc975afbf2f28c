#include "methods/giocata_in_parole.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

struct Caso {
  const char* nome;
  TestiPrevisione testi;
  const char* letta;  ///< "Si gioca: " in front for what is right
};

void PrintTo(const Caso& caso, std::ostream* dove) { *dove << caso.nome; }

class GiocataLetta : public testing::TestWithParam<Caso> {};

TEST_P(GiocataLetta, SaysWhatIsPlayedOrWhatIsWrong) {
  const auto letta = giocataInParole(GetParam().testi);
  EXPECT_EQ(letta.testo, GetParam().letta);
  EXPECT_EQ(letta.sbagliata, !letta.testo.empty() && !letta.testo.starts_with("Si gioca: "));
}

INSTANTIATE_TEST_SUITE_P(
    , GiocataLetta,
    testing::Values(
        Caso{"nothing", {.colpi = "10"}, ""},
        Caso{"all_kinds",
             {.ruote = "ba-NAZ-Tutte", .colpi = "1", .ambate = "1; 90", .ambi = "5-6", .sup = "1-2-3;4-5"},
             "Si gioca: ambate 1, 90 · ambo 5-6 · combinazioni 1-2-3, 4-5 · Bari, Nazionale · gli ambi anche "
             "su "
             "tutte le ruote · 1 colpo"},
        Caso{"no_bet",
             {.ruote = "Ba", .colpi = "10"},
             "Manca la giocata: ambate, ambi secchi o sorti superiori"},
        Caso{"no_wheel", {.colpi = "10", .ambate = "90"}, "Mancano le ruote: per esempio Ba-Ca"},
        Caso{
            "above_ninety", {.ruote = "Ba", .ambate = "95"}, "95 non è un numero del Lotto: vanno da 1 a 90"},
        Caso{"zero", {.ruote = "Ba", .ambate = "0"}, "0 non è un numero del Lotto: vanno da 1 a 90"},
        Caso{"comma",
             {.ruote = "Ba", .ambate = "1,31"},
             "\"1,31\" non è un numero: qui si separano con \";\""},
        Caso{"two_separators",
             {.ruote = "Ba", .ambate = "1;;2"},
             "Manca un numero: l'elenco finisce o ha due separatori di seguito"},
        Caso{"twice", {.ruote = "Ba", .ambi = "7-7"}, "Il 7 è due volte in 7-7"},
        Caso{"three_for_two",
             {.ruote = "Ba", .ambi = "7-8-9"},
             "\"7-8-9\" non è un ambo: due numeri, come 15-50"},
        Caso{"six_together",
             {.ruote = "Ba", .sup = "1-2-3-4-5-6"},
             "\"1-2-3-4-5-6\" non è una combinazione: da due a cinque numeri, come 15-50-66"},
        Caso{"wheel_in_full", {.ruote = "Ca-Bari", .ambate = "1"}, "Bari si scrive Ba"},
        Caso{"wheel_of_the_import", {.ruote = "Rm", .ambate = "1"}, "Roma si scrive Ro"},
        Caso{"tutte_without_ambi",
             {.ruote = "Ba-Tutte", .ambate = "90"},
             "Tutte vale per gli ambi secchi soltanto, e qui non ce ne sono"},
        Caso{"tutte_alone",
             {.ruote = "tutte", .ambi = "5-6"},
             "Con Tutte ci vuole anche una ruota, come Ba-Tutte"}),
    [](const auto& info) { return info.param.nome; });

}  // namespace
}  // namespace vaticlo::prova
