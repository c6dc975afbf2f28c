#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_modifica.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

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
  apri();
  EXPECT_EQ(vista(), "1/1 n.1 0/0/000") << "an empty archive";
  archivioDi(3).data(1, 5, 1, 2004).scrivi(p);
  frm.Form_Activate();
  EXPECT_EQ(vista(), "4/4 n.3 12/3/2005");
  auto& barra = frm.estrazione.VScroll1;
  for (const int valore : {1, 2}) {
    barra.Value(valore);
    EXPECT_EQ(vista(), std::to_string(valore) + "/4 n.1 5/1/2004");
  }
  for (const int fuori : {0, 5}) EXPECT_EQ(failureDi([&] { return barra.Value(fuori), 0; }), 380);
  frm.Form_Activate();
  EXPECT_EQ(vista(), "4/4 n.3 12/3/2005") << "active again with the bar elsewhere";
  frm.Form_Activate();
  EXPECT_EQ(vista(), "4/4 n.4 0/0/000") << "active again with the bar at its end already";
}

TEST_F(Modifica, ADrawIsFoundByNumberOrDate) {
  const std::string campo = "Inserisci un valore corretto compreso tra 1 e 60.";
  const std::tuple<const char*, int, std::string> casi[] = {
      // what is typed, the draw shown then (30: as before), the message
      {"60", 60, ""},
      {"2,5", 2, ""},
      {"1", 30, campo},
      {"61", 30, campo},
      {"", 30, ""},
      {"16.03.2005", 60, ""},
      {"8/1/45", 2, ""},
      {"30/2/2004", 30, "Inserisci un valore numerico"},
      {"1/1/1944", 30, "Inserisci una data corretta"}};
  archivioDi(60).data(1, 1, 1, 1945).data(2, 10, 1, 1945).data(60, 16, 3, 2005).scrivi(p);
  apri();
  for (const auto& [digitato, trovata, messaggio] : casi) {
    frm.estrazione.VScroll1.Value(31);
    p.servizi.messaggi.clear();
    p.servizi.digitato = digitato;
    frm.btnTrova_Click();
    EXPECT_EQ(frm.estrazione.lblnestr.Caption(), std::to_string(trovata)) << digitato;
    EXPECT_EQ(p.globals().EstrazioneCorrente, trovata) << digitato;
    EXPECT_EQ(p.servizi.messaggi.empty() ? "" : p.servizi.messaggi[0].testo, messaggio) << digitato;
  }
  EXPECT_THAT(p.servizi.domande[0].first, HasSubstr("dell'estrazione (compreso tra 1 e 60) da"));
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
}

TEST(Inserisci, ANumberIsTestedForItsRangeAndAsATextAgainstTheFieldsAtItsLeft) {
  ProgrammaProva p;
  CorniceProva cornice;
  frmInserisci frm(p.programma, cornice);
  frm.Form_Load();
  EXPECT_EQ(cornice.chiesto, "altre ");
  const std::string valore = "Inserire un valore valido compreso tra 1 e 90";
  const auto gia = [](const std::string& testo) {
    return "''" + testo + "'' è stato già inserito come estratto nella ruota";
  };
  // A field, what it holds then, and the message; the others keep what they have.
  const std::tuple<std::size_t, const char*, std::string> casi[] = {
      {0, "  ", valore},    {0, "0 ", valore},    {0, "91", valore},    {0, "90", ""},
      {1, "5 ", ""},        {2, "90", gia("90")}, {2, "5 ", gia("5 ")}, {2, " 5", ""},
      {4, "5 ", gia("5 ")}, {5, "90", ""},        {6, "1 ", ""},        {5, "1 ", ""}};
  for (const auto& [f, testo, messaggio] : casi) {
    p.servizi.messaggi.clear();
    frm.txtestr[f].Text(testo);
    EXPECT_EQ(frm.txtestr[f].Validate(), !messaggio.empty()) << f << ' ' << testo;
    EXPECT_EQ(p.servizi.messaggi.empty() ? "" : p.servizi.messaggi[0].testo, messaggio);
  }
}

}  // namespace
}  // namespace vaticlo::prova
