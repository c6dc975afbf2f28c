#include "methods/scansione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// The window of a scan, which notes what it is told: "0 max2 1 report" of the progress bar and of the end.
struct PannelloProva : PannelloScansione {
  [[nodiscard]] SceltaMetodo scelta() const override { return {}; }
  [[nodiscard]] std::string txtColpi_Text() const override { return "1"; }
  void prgbar_Value(int valore) override { eventi += std::to_string(valore) + " "; }
  void prgbar_Max(int massimo) override { eventi += "max" + std::to_string(massimo) + " "; }
  void mostraRapporto(bool qualcosa) override { eventi += qualcosa ? "report" : "nothing"; }
  std::string eventi;
};

class Scans : public testing::Test {
 protected:
  std::string inGioco() {
    frm.eventi.clear();
    ScansionePrevisioni(p.programma, frm).PrevInGioco();
    return p.contenuto("PrevGioco.txt");
  }
  ProgrammaProva p;
  PannelloProva frm;
};

TEST_F(Scans, AFailureEndsThemAndKeepsTheLinesWrittenBefore) {
  archivioDi(103).scrivi(p);
  scriviMetodoProva(p, "A", {{.estrazione = 101, .ruote = {1}, .ambate = {1}}});
  const auto scritte = rapportoDi(
      " Previsione n.°1| Metodo: A| Colpi ancora in gioco: 8| Ruote: Ba| Ambate: 1||"
      "___________________________________");
  EXPECT_EQ(inGioco(), scritte);
  EXPECT_EQ(frm.eventi, "0 max1 1 report");
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
