#include "methods/scansione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// An entry of a report: its lines, parted by "|", and the closing rule.
std::string voce(const std::string& righe) {
  return rapportoDi(righe + "|___________________________________");
}

/// The window of a scan, which notes what it is told.
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

TEST_F(Scans, InPlayLeavesOutWhatHasWonByTheRulesOfItsBets) {
  archivioDi(103, "101 Ba 33, 102 Ba 1 2, 102 Ro 5 6 7").scrivi(p);
  // Ruote, ambate, ambi, sorti; whether the prediction is still in play.
  const std::tuple<const char*, Celle, Celle, Celle, Celle, bool> casi[] = {
      {"an ambata", {2, 1}, {9, 1}, {}, {}, false},
      {"an ambata on Tutte alone", {12}, {1}, {}, {}, true},
      {"an ambata of the calculation draw", {1}, {33}, {}, {}, true},
      {"an ambo outside its wheels", {1}, {}, {5, 6, 99}, {}, true},
      {"an ambo on Tutte beside a wheel", {1, 12}, {}, {5, 6, 99}, {}, false},
      {"one place of a combination", {8, 1}, {}, {}, {1, 5, 99}, true},
      {"two places of a combination", {1, 8}, {}, {}, {1, 5, 6, 99}, false},
      {"six places of a combination", {8}, {}, {}, {5, 5, 6, 6, 7, 7, 99}, true},
      {"a combination on Tutte alone", {12}, {}, {}, {5, 6, 99}, true}};
  for (const auto& [perche, ruote, ambate, ambi, sup, atteso] : casi) {
    scriviMetodoProva(p, "M", {{101, {}, ruote, 10, ambate, ambi, sup}});
    EXPECT_EQ(!inGioco().empty(), atteso) << perche;
    EXPECT_EQ(frm.eventi, atteso ? "0 max1 1 report" : "0 max1 1 nothing") << perche;
  }
}

TEST_F(Scans, WinnersAreWrittenWithTheHitsOfTheirFirstWinningColpo) {
  archivioDi(105, "105 Ba 12, 105 Ca 34").scrivi(p);
  scriviMetodoProva(p, "Metodo 2",
                    {{.estrazione = 101, .ruote = {1}, .ambate = {50}},
                     {.estrazione = 101, .ruote = {1, 2}, .ambate = {12, 34}}});
  EXPECT_EQ(vincenti(), voce(" Previsione n.°1| Metodo: Metodo 2| Ruote: Ba-Ca| Ambate: 12-34|| Esito: "
                             "| Ambata 12 Ba al 4°colpo| Ambata 34 Ca al 4°colpo"));
}

TEST_F(Scans, WinnersCountByTheLimitOfTheLastDraws) {
  archivioDi(110, "108 Ba 11 12 13 14 15, 109 Ba 21, 110 Ba 1 2 3 4 5, 110 Na 8 9, 110 Ro 9 8").scrivi(p);
  const std::string tutte = " Ambo 8-9 su Tutte (Na) al 5°colpo| Ambo 8-9 su Tutte (Ro) al 5°colpo";
  const auto ogniGiocata = " Ambata 9 Na al 5°colpo| Ambo 8-9 Na al 5°colpo|" + tutte +
                           "| Ambo in sorti superiori 9 8 Na al 5° colpo";
  // How many last draws count; ruote, ambate, ambi, sorti; the hits. "-": not listed, empty: listed without.
  const std::tuple<const char*, Celle, Celle, Celle, Celle, std::string> casi[] = {
      {"1", {1}, {1}, {}, {}, " Ambata 1 Ba al 5°colpo"},
      {"1", {1}, {1, 21}, {}, {}, "-"},
      {"2", {1}, {1, 21}, {}, {}, " Ambata 21 Ba al 4°colpo"},
      {"1", {1}, {}, {}, {5, 9, 4, 3, 2, 1, 99}, " Cinquina in sorti superiori 5 4 3 2 1 Ba al 5° colpo"},
      {"3", {1}, {}, {}, {5, 4, 3, 2, 1, 99}, ""},
      {"3", {1}, {}, {}, {1, 2, 3, 4, 99}, ""},
      {"3", {1}, {}, {}, {11, 12, 13, 14, 99}, " Quaterna in sorti superiori 11 12 13 14 Ba al 3° colpo"},
      {"3", {1}, {}, {}, {1, 2, 3, 99}, " Terno in sorti superiori 1 2 3 Ba al 5° colpo"},
      {"1", {1, 6, 12}, {}, {8, 9, 99}, {}, tutte + "| Ambo 8-9 Na al 5°colpo"},
      {"1", {6, 12}, {9}, {8, 9, 99}, {9, 8, 99}, ogniGiocata}};
  for (const auto& [ultime, ruote, ambate, ambi, sup, esito] : casi) {
    frm.ultime = ultime;
    scriviMetodoProva(p, "M", {{105, {}, ruote, 6, ambate, ambi, sup}});
    const auto testo = vincenti();
    EXPECT_EQ(testo.substr(std::min(testo.find(" Esito:"), testo.size())),
              esito == "-" ? "" : voce(" Esito: |" + esito));
    EXPECT_EQ(testo.empty(), esito == "-") << testo;
  }
  scriviMetodoProva(p, "M", {{.estrazione = 105, .ruote = {1}, .colpi = 5, .ambate = {1}}});
  EXPECT_EQ(vincenti(), "") << "its last colpo is the last draw";
}

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
