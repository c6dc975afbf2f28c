#include <gmock/gmock.h>

#include "dialogs/frm_modifica.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/failure_prova.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {
namespace {

using testing::ElementsAre;

class Modifica : public testing::Test {
 protected:
  void apri() {
    frm.Form_Load();
    frm.Form_Activate();
  }
  /// What the window shows: bar, number and date.
  [[nodiscard]] std::string vista() const {
    const auto& e = frm.estrazione;
    return std::to_string(e.VScroll1.Value()) + "/" + std::to_string(e.VScroll1.Max()) + " n." +
           e.lblnestr.Caption() + " " + e.lbldataestr.Caption();
  }
  ProgrammaProva p;
  CorniceProva cornice;
  frmModifica frm{p.programma, cornice};
};

TEST_F(Modifica, OpensOnTheNewestDrawAndTheBarStandsOneAboveIt) {
  archivioDi(3).data(1, 5, 1, 2004).scrivi(p);
  apri();
  EXPECT_EQ(cornice.chiesto, "altre ");
  EXPECT_EQ(vista(), "4/4 n.3 12/3/2005");
  auto& barra = frm.estrazione.VScroll1;
  for (const auto& [valore, atteso] :
       {std::pair{1, "1/4 n.1 5/1/2004"}, {2, "2/4 n.1 5/1/2004"}, {3, "3/4 n.2 12/3/2005"}}) {
    barra.Value(valore);
    EXPECT_EQ(vista(), atteso);
  }
  EXPECT_EQ(p.globals().EstrazioneCorrente, 2);
  for (const int fuori : {0, 5}) EXPECT_EQ(failureDi([&] { return barra.Value(fuori), 0; }), 380);
  frm.Form_Activate();
  EXPECT_EQ(vista(), "4/4 n.3 12/3/2005") << "active again with the bar elsewhere";
  frm.Form_Activate();
  EXPECT_EQ(vista(), "4/4 n.4 0/0/000") << "active again with the bar at its end already";
}

TEST_F(Modifica, AnEmptyArchiveShowsItsFirstFreeSlot) {
  apri();
  EXPECT_EQ(vista(), "1/1 n.1 0/0/000");
}

TEST_F(Modifica, ADrawIsFoundByNumberOrDate) {
  const std::vector<std::string> nulla;
  const std::vector<std::string> campo = {"[Attenzione] Inserisci un valore corretto compreso tra 1 e 60."};
  const std::vector<std::string> numero = {"[Attenzione] Inserisci un valore numerico"};
  const struct {
    const char* testo;
    int trovata;  // 30: the window stays as it was
    std::vector<std::string> messaggi;
  } casi[] = {
      {"60", 60, nulla},
      {"2", 2, nulla},
      {"1", 30, campo},
      {"61", 30, campo},
      {"-5", 30, campo},
      {"2,5", 2, nulla},
      {"3,5", 4, nulla},
      {"", 30, nulla},
      {"16.03.2005", 60, nulla},
      {"1-1-1945", 1, nulla},
      {"8/1/45", 2, nulla},
      {"30/2/2004", 30, numero},
      {"1/1/1944", 30, {"[Attenzione] Inserisci una data corretta"}},
  };
  archivioDi(60).data(1, 1, 1, 1945).data(2, 10, 1, 1945).data(60, 16, 3, 2005).scrivi(p);
  apri();
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.testo);
    frm.estrazione.VScroll1.Value(31);
    p.servizi.messaggi.clear();
    p.servizi.digitato = caso.testo;
    frm.btnTrova_Click();
    EXPECT_EQ(frm.estrazione.lblnestr.Caption(), std::to_string(caso.trovata));
    EXPECT_EQ(frm.estrazione.VScroll1.Value(), caso.trovata + 1);
    EXPECT_EQ(p.globals().EstrazioneCorrente, caso.trovata);
    EXPECT_EQ(p.servizi.detti(), caso.messaggi);
  }
  p.servizi.digitato = "40000";
  EXPECT_EQ(failureDi([&] { return frm.btnTrova_Click(), 0; }), 6);
  EXPECT_EQ(
      p.servizi.domande[0],
      std::pair(std::string("Inserisci il numero dell'estrazione (compreso tra 1 e 60) da ricercare oppure "
                            "la data dell'estrazione in uno dei seguenti formati:(gg/mm/aaaa oppure "
                            "gg-mm-aaaa oppure gg.mm.aaaa)."),
                std::string("Cerca Estrazione")));
}

TEST_F(Modifica, NothingIsSavedOrDeletedWithoutAYes) {
  archivioDi(3).scrivi(p);
  apri();
  frm.estrazione.txtestr[0].Text("255");
  const auto prima = p.contenuto("archivion71.dat");
  p.servizi.risposta = Risposta::No;
  frm.btnSalva_Click();
  frm.btnCancella_Click();
  EXPECT_TRUE(p.contenuto("archivion71.dat") == prima);
  p.servizi.risposta = Risposta::Si;
  frm.btnSalva_Click();
  EXPECT_EQ(ApriArchivio(p.cartella())(3, 1, 1), 255);
  EXPECT_EQ(cornice.chiesto, "altre ");
  frm.btnCancella_Click();
  EXPECT_EQ(cornice.chiesto, "altre riapri ");
  EXPECT_EQ(vista(), "3/3 n.3 0/0/000") << "the bar moves to its new end, then the deleted number is shown";
  EXPECT_EQ(p.globals().EstrazioneCorrente, 2);
  const std::string salvare = "[Attenzione] Sei sicuro di voler modificare l'estrazione corrente";
  const std::string cancellare = "[Attenzione] Sei sicuro di voler cancellare l'estrazione selezionata";
  EXPECT_THAT(p.servizi.detti(), ElementsAre(salvare, cancellare, salvare, cancellare));
}

}  // namespace
}  // namespace vaticlo::prova
