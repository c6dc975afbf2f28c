#include "methods/giocata_in_parole.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

struct Caso {
  const char* nome;
  TestiPrevisione testi;  ///< number, wheels, colpi, ambate, ambi, combinations
  const char* letta;      ///< "Si gioca: " in front for what is right
};

void PrintTo(const Caso& caso, std::ostream* dove) { *dove << caso.nome; }

class GiocataLetta : public testing::TestWithParam<Caso> {};

TEST_P(GiocataLetta, SaysWhatIsPlayedOrWhatIsWrong) {
  const auto letta = giocataInParole(GetParam().testi);
  EXPECT_EQ(letta.testo, GetParam().letta);
  EXPECT_EQ(letta.sbagliata, !letta.testo.empty() && !letta.testo.starts_with("Si gioca: "));
}

const Caso kGiocataLetta[] = {
    {"nothing", {"", "", "10", "", "", ""}, ""},
    {"all_kinds",
     {"", "ba-NAZ-Tutte", "1", "1; 90", "5-6", "1-2-3;4-5"},
     "Si gioca: ambate 1, 90 · ambo 5-6 · combinazioni 1-2-3, 4-5 · Bari, Nazionale · gli ambi anche "
     "su "
     "tutte le ruote · 1 colpo"},
    {"no_bet", {"", "Ba", "10", "", "", ""}, "Manca la giocata: ambate, ambi secchi o sorti superiori"},
    {"no_wheel", {"", "", "10", "90", "", ""}, "Mancano le ruote: per esempio Ba-Ca"},
    {"above_ninety", {"", "Ba", "", "95", "", ""}, "95 non è un numero del Lotto: vanno da 1 a 90"},
    {"zero", {"", "Ba", "", "0", "", ""}, "0 non è un numero del Lotto: vanno da 1 a 90"},
    {"comma", {"", "Ba", "", "1,31", "", ""}, "\"1,31\" non è un numero: qui si separano con \";\""},
    {"two_separators",
     {"", "Ba", "", "1;;2", "", ""},
     "Manca un numero: l'elenco finisce o ha due separatori di seguito"},
    {"twice", {"", "Ba", "", "", "7-7", ""}, "Il 7 è due volte in 7-7"},
    {"three_for_two", {"", "Ba", "", "", "7-8-9", ""}, "\"7-8-9\" non è un ambo: due numeri, come 15-50"},
    {"six_together",
     {"", "Ba", "", "", "", "1-2-3-4-5-6"},
     "\"1-2-3-4-5-6\" non è una combinazione: da due a cinque numeri, come 15-50-66"},
    {"wheel_in_full", {"", "Ca-Bari", "", "1", "", ""}, "Bari si scrive Ba"},
    {"wheel_of_the_import", {"", "Rm", "", "1", "", ""}, "Roma si scrive Ro"},
    {"tutte_without_ambi",
     {"", "Ba-Tutte", "", "90", "", ""},
     "Tutte vale per gli ambi secchi soltanto, e qui non ce ne sono"},
    {"tutte_alone", {"", "tutte", "", "", "5-6", ""}, "Con Tutte ci vuole anche una ruota, come Ba-Tutte"}};

INSTANTIATE_TEST_SUITE_P(, GiocataLetta, testing::ValuesIn(kGiocataLetta), perNome);

}  // namespace
}  // namespace vaticlo::prova
