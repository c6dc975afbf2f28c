#include "methods/scansione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// An entry of a report, given as to rapportoDi(), and the closing rule.
std::string voce(const std::string& righe) {
  return rapportoDi(righe + "|___________________________________");
}

/// The window of a scan, which notes what it is told: "0 max2 1 report" of the progress bar and of the end.
struct PannelloProva : PannelloScansione {
  [[nodiscard]] SceltaMetodo scelta() const override { return {}; }
  [[nodiscard]] std::string txtColpi_Text() const override { return ultime; }
  void prgbar_Value(int valore) override { eventi += std::to_string(valore) + " "; }
  void prgbar_Max(int massimo) override { eventi += "max" + std::to_string(massimo) + " "; }
  void mostraRapporto(bool qualcosa) override { eventi += qualcosa ? "report" : "nothing"; }
  std::string ultime = "1", eventi;
};

class Scans : public testing::Test {
 protected:
  std::string inGioco() {
    frm.eventi.clear();
    ScansionePrevisioni(p.programma, frm).PrevInGioco();
    return p.contenuto("PrevGioco.txt");
  }
  std::string vincenti() {
    ScansionePrevisioni(p.programma, frm).PrevVincenti();
    return p.contenuto("Vincenti.txt");
  }
  ProgrammaProva p;
  PannelloProva frm;
};

/// The lists of a prediction, and whether it is still in play.
struct Aperta {
  const char* nome;
  Celle ruote, ambate, ambi, sup;
  bool inGioco;
};

void PrintTo(const Aperta& caso, std::ostream* dove) { *dove << caso.nome; }

class InPlay : public Scans, public testing::WithParamInterface<Aperta> {};

TEST_P(InPlay, LeavesOutWhatHasWonByTheRulesOfItsBets) {
  const auto& caso = GetParam();
  archivioDi(103, "101 Ba 33, 102 Ba 1 2, 102 Ro 5 6 7").scrivi(p);
  scriviMetodoProva(p, "M", {{101, {}, caso.ruote, 10, caso.ambate, caso.ambi, caso.sup}});
  EXPECT_EQ(!inGioco().empty(), caso.inGioco);
  EXPECT_EQ(frm.eventi, caso.inGioco ? "0 max1 1 report" : "0 max1 1 nothing");
}

const Aperta kInPlay[] = {{"ambata", {2, 1}, {9, 1}, {}, {}, false},
                          {"ambata_on_tutte_alone", {12}, {1}, {}, {}, true},
                          {"ambata_of_the_calculation_draw", {1}, {33}, {}, {}, true},
                          {"ambo_outside_its_wheels", {1}, {}, {5, 6, 99}, {}, true},
                          {"ambo_on_tutte_beside_a_wheel", {1, 12}, {}, {5, 6, 99}, {}, false},
                          {"one_place_of_a_sorte", {8, 1}, {}, {}, {1, 5, 99}, true},
                          {"two_places_of_a_sorte", {1, 8}, {}, {}, {1, 5, 6, 99}, false},
                          {"six_places_of_a_sorte", {8}, {}, {}, {5, 5, 6, 6, 7, 7, 99}, true},
                          {"sorte_on_tutte_alone", {12}, {}, {}, {5, 6, 99}, true}};

INSTANTIATE_TEST_SUITE_P(, InPlay, testing::ValuesIn(kInPlay), perNome);

TEST_F(Scans, WinnersAreWrittenWithTheHitsOfTheirFirstWinningColpo) {
  archivioDi(105, "105 Ba 12, 105 Ca 34").scrivi(p);
  scriviMetodoProva(p, "Metodo 2",
                    {{.estrazione = 101, .ruote = {1}, .ambate = {50}},
                     {.estrazione = 101, .ruote = {1, 2}, .ambate = {12, 34}}});
  EXPECT_EQ(vincenti(), voce(" Previsione n.°1| Metodo: Metodo 2| Ruote: Ba-Ca| Ambate: 12-34|| Esito: "
                             "| Ambata 12 Ba al 4°colpo| Ambata 34 Ca al 4°colpo"));
}

const std::string kSuTutte = " Ambo 8-9 su Tutte (Na) al 5°colpo| Ambo 8-9 su Tutte (Ro) al 5°colpo";
const std::string kOgniGiocata = " Ambata 9 Na al 5°colpo| Ambo 8-9 Na al 5°colpo|" + kSuTutte +
                                 "| Ambo in sorti superiori 9 8 Na al 5° colpo";

struct Limite {
  const char* nome;
  int ultime;  ///< so many draws count, the last ones
  Celle ruote, ambate, ambi, sup;
  std::optional<std::string> esito;  ///< the hits; listed without any when empty, not listed without a value
  int colpi = 6;
};

void PrintTo(const Limite& caso, std::ostream* dove) { *dove << caso.nome; }

class Winners : public Scans, public testing::WithParamInterface<Limite> {};

TEST_P(Winners, CountByTheLimitOfTheLastDraws) {
  const auto& caso = GetParam();
  archivioDi(110, "108 Ba 11 12 13 14 15, 109 Ba 21, 110 Ba 1 2 3 4 5, 110 Na 8 9, 110 Ro 9 8").scrivi(p);
  frm.ultime = std::to_string(caso.ultime);
  scriviMetodoProva(p, "M", {{105, {}, caso.ruote, caso.colpi, caso.ambate, caso.ambi, caso.sup}});
  const auto testo = vincenti();
  EXPECT_EQ(testo.substr(std::min(testo.find(" Esito:"), testo.size())),
            caso.esito ? voce(" Esito: |" + *caso.esito) : "");
  EXPECT_EQ(testo.empty(), !caso.esito) << testo;
}

const Limite kWinners[] = {
    {"on_the_last_draw", 1, {1}, {1}, {}, {}, " Ambata 1 Ba al 5°colpo"},
    {"won_before_the_limit", 1, {1}, {1, 21}, {}, {}, std::nullopt},
    {"at_the_limit", 2, {1}, {1, 21}, {}, {}, " Ambata 21 Ba al 4°colpo"},
    {"six", 1, {1}, {}, {}, {5, 9, 4, 3, 2, 1, 99}, " Cinquina in sorti superiori 5 4 3 2 1 Ba al 5° colpo"},
    {"all_of_five", 3, {1}, {}, {}, {5, 4, 3, 2, 1, 99}, ""},
    {"all_of_four", 3, {1}, {}, {}, {1, 2, 3, 4, 99}, ""},
    {"four", 3, {1}, {}, {}, {11, 12, 13, 14, 99}, " Quaterna in sorti superiori 11 12 13 14 Ba al 3° colpo"},
    {"all_of_three", 3, {1}, {}, {}, {1, 2, 3, 99}, " Terno in sorti superiori 1 2 3 Ba al 5° colpo"},
    {"ambo_on_tutte", 1, {1, 6, 12}, {}, {8, 9, 99}, {}, kSuTutte + "| Ambo 8-9 Na al 5°colpo"},
    {"all_kinds", 1, {6, 12}, {9}, {8, 9, 99}, {9, 8, 99}, kOgniGiocata},
    {"last_colpo_is_the_last_draw", 1, {1}, {1}, {}, {}, std::nullopt, 5}};

INSTANTIATE_TEST_SUITE_P(, Winners, testing::ValuesIn(kWinners), perNome);

TEST_F(Scans, AFailureEndsThemAndKeepsTheLinesWrittenBefore) {
  archivioDi(103).scrivi(p);
  scriviMetodoProva(p, "A", {{.estrazione = 101, .ruote = {1}, .ambate = {1}}});
  const auto scritte = voce(" Previsione n.°1| Metodo: A| Colpi ancora in gioco: 8| Ruote: Ba| Ambate: 1|");
  const SlotProva soloTutte = {.estrazione = 101, .ruote = {12}, .ambi = {1, 2, 99}};
  for (const auto& slot : {std::vector(10, SlotProva{.estrazione = 90}), {soloTutte}}) {
    scriviMetodoProva(p, "B", slot);
    EXPECT_EQ(failureDi([&] { return inGioco(); }), 9);
    EXPECT_EQ(p.contenuto("PrevGioco.txt"), scritte);
    EXPECT_EQ(frm.eventi, "0 max2 1 ");
  }
  p.scrivi("Metodi/appunti.txt", "");
  EXPECT_EQ(failureDi([&] { return inGioco(); }), 5);
  EXPECT_EQ(p.contenuto("PrevGioco.txt"), "");
}

}  // namespace
}  // namespace vaticlo::prova
