#include <gmock/gmock.h>

#include "dialogs/frm_somdif.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {
namespace {

class Somdif : public testing::Test {
 protected:
  Somdif() {
    archivioDi(3, "2 Ba 1 90,2 Ca 10 11,2 Fi 1 8,3 Ba 4,3 Ca 7 6").data(3, 1, 4, 2005).scrivi(p);
    frm.Form_Load();
  }
  /// The first three fields of the first column, "*" behind the yellow ones, and the number of the draw.
  [[nodiscard]] std::string colonna() const {
    std::string testo;
    for (std::size_t i = 0; i < 3; ++i)
      testo += frm.colonne[0][i].Text() + (frm.colonne[0][i].BackColor() == kGiallo ? "* " : " ");
    return testo + "n." + frm.lblnestr.Caption();
  }
  ProgrammaProva p;
  CorniceProva cornice;
  frmSomdif frm{p.programma, cornice};
};

TEST_F(Somdif, AnEmptyArchiveLeavesTheWindowEmpty) {
  ArchivioProva(0).scrivi(p);
  frmSomdif vuota(p.programma, cornice);
  vuota.Form_Load();
  EXPECT_EQ(vuota.lblnestr.Caption() + vuota.lbldataestr.Caption() + vuota.colonne[9][9].Text(), "");
  EXPECT_EQ(p.globals().UltimaEstrazione, 0);
}

TEST_F(Somdif, EachChangeMarksItsOwnEqualValuesAlone) {
  EXPECT_EQ(cornice.chiesto, "") << "other windows stay open";
  EXPECT_EQ(colonna(), "4 1 0* n.3");
  frm.VScroll1.Value(3);
  EXPECT_EQ(colonna(), "1* 1* 7 n.2");
  frm.opzione_Click(TipoSomDif::Matematica);
  EXPECT_EQ(colonna(), "89 1 7 n.2");
  frm.opzione_Click(TipoSomDif::Somma);
  EXPECT_EQ(colonna(), "1 21 9 n.2");
  p.servizi.digitato = "3";
  frm.btnTrova_Click();
  EXPECT_EQ(colonna(), "4 13 0* n.3");
}

TEST_F(Somdif, ASearchByDateLeavesTheFirstNumbersOfTheDrawInTheFirstColumn) {
  frm.VScroll1.Value(2);
  p.servizi.digitato = "1/4/2005";
  frm.btnTrova_Click();
  EXPECT_EQ(colonna(), "4* 0* 0* n.3");
  EXPECT_EQ(frm.colonne[0][5].Text() + frm.colonne[0][6].Text(), "76");
  EXPECT_EQ(frm.VScroll1.Value(), 2);
  EXPECT_EQ(p.globals().EstrazioneSomdif, 1);
  EXPECT_TRUE(p.servizi.messaggi.empty());
}

}  // namespace
}  // namespace vaticlo::prova
