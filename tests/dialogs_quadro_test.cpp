#include "dialogs/frm_quadro.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

SlotProva ambata(int estrazione, int numero = 7) {
  return {.estrazione = estrazione, .ruote = {1}, .colpi = 2, .ambate = {numero}};
}

/// The window over three methods; draw 110 of 12/3/2005 is the last, and Bari shows 7 on draw 103.
struct Quadro : testing::Test {
  Quadro() {
    archivioDi(110, "103 Ba 7").data(1, 7, 1, 1939).data(102, 1, 2, 2005).scrivi(p);
    scriviMetodoProva(p, "A", {ambata(102), ambata(105), ambata(109)});
    scriviMetodoProva(p, "Dieci", std::vector<SlotProva>(10, ambata(101)));
    scriviMetodoProva(p, "Vuoto", {});
    frm.Form_Load();
    frm.Form_Activate();
  }
  void scegli(const std::string& nome) {
    for (Prospetto::Riga riga = 0; riga < frm.metodi.tabella().righe.size(); ++riga)
      if (testoCella(frm.metodi.cella(riga, 0)) == nome) frm.metodi.scegli({riga});
  }
  [[nodiscard]] std::string colonna(const Prospetto& prospetto, std::size_t n) const {
    std::string testo;
    for (const auto riga : prospetto.mostrate()) testo += testoCella(prospetto.cella(riga, n)) + "|";
    return testo;
  }
  [[nodiscard]] int previsioni(const std::string& nome) const {
    return ContaPrevisioni(LeggiMetodo(p.cartella(), nome));
  }
  ProgrammaProva p;
  CorniceProva cornice;
  frmQuadro frm{p.programma, cornice};
};

TEST_F(Quadro, ShowsEveryMethodAndThePredictionsOfTheChosenOne) {
  EXPECT_EQ(colonna(frm.metodi, 0), "A|Dieci|Vuoto|");
  EXPECT_EQ(colonna(frm.metodi, 9), "|dieci previsioni||");
  EXPECT_EQ(frm.lblMetodi.Caption(), "3 metodi. 3 previsioni giocate: 1 vincente, 1 negativa, 1 in gioco.");
  EXPECT_EQ(colonna(frm.previsioni, 9), "vinta al 1° colpo: ambata 7 Ba|negativa|in gioco, ancora 1 colpo|");
  scegli("Dieci");
  EXPECT_EQ(frm.previsioni.tabella().righe.size(), 10U);
  EXPECT_THAT(frm.lblNota.Caption(), HasSubstr("toglietene una"));
  frm.txtFiltro.Text("vuo");
  frm.txtFiltro.Change();
  EXPECT_EQ(colonna(frm.metodi, 0), "Vuoto|");
  EXPECT_EQ(frm.lblNota.Caption(), "Questo metodo non ha previsioni.");
  EXPECT_THAT(p.servizi.messaggi, IsEmpty());
}

TEST_F(Quadro, ItsRangeIsTwoNumbersOrTwoDates) {
  const struct {
    const char* nome;
    std::string dal, al, intervallo;  // what is typed stays for the next step
  } passi[] = {
      {"first number", "105", "", "105-110"},      {"last number", "", "108", "105-108"},
      {"date of a draw", "7.1.1939", "", "1-108"}, {"date before a draw", "2/1/2005", "102", "2-102"},
      {"last before first", "", "1", "1-1"},       {"first after last", "50", "", "50-110"}};
  for (const auto& passo : passi) {
    SCOPED_TRACE(passo.nome);
    if (!passo.dal.empty()) frm.txtDal.Text(passo.dal);
    EXPECT_FALSE(frm.txtDal_Validate());
    if (!passo.al.empty()) frm.txtAl.Text(passo.al);
    EXPECT_FALSE(frm.txtAl_Validate());
    EXPECT_EQ(frm.txtDal.Text() + "-" + frm.txtAl.Text(), passo.intervallo);
  }
  EXPECT_EQ(colonna(frm.metodi, 2), "3|0|0|");
  EXPECT_THAT(p.servizi.messaggi, IsEmpty());
  for (const char* testo : {"0", "111", "1,5", "ieri", "1/1/2050", ""}) {
    frm.txtDal.Text(testo);
    EXPECT_TRUE(frm.txtDal_Validate()) << testo;
    EXPECT_EQ(frm.txtDal.Text(), "50");
  }
  EXPECT_EQ(p.servizi.messaggi.size(), 6U);
  frm.btnArchivio_Click();
  EXPECT_EQ(frm.txtDal.Text() + "-" + frm.txtAl.Text() + frm.lblDal.Caption(), "1-110del 7/1/1939");
}

TEST_F(Quadro, AnArchiveWithoutDrawsHasNoRange) {
  archivioDi(0).scrivi(p);
  frm.archivioNuovo();
  frm.txtAl.Text("1");
  EXPECT_TRUE(frm.txtAl_Validate());
  EXPECT_THAT(p.servizi.detti(), ElementsAre("[Attenzione] L'archivio non contiene ancora estrazioni!"));
}

TEST_F(Quadro, AMethodWithTenIsRepairedByMovingOneAndEachStepIsTakenBack) {
  scegli("Dieci");
  frm.previsioni.scegli({9, 3});
  p.servizi.digitato = "Vuoto";
  frm.btnSposta_Click();
  EXPECT_EQ(previsioni("Dieci") * 10 + previsioni("Vuoto"), 82);
  EXPECT_EQ(frm.lblFatto.Caption(), "Spostate le previsioni n. 4, 10 del metodo \"Dieci\" in \"Vuoto\".");
  EXPECT_EQ(colonna(frm.metodi, 9), "|||") << "it is judged again";
  EXPECT_THAT(frm.previsioni.scelte(), IsEmpty()) << "other predictions have these numbers now";
  scegli("A");
  frm.previsioni.scegli({0});
  p.servizi.risposta = Risposta::No;
  frm.btnTogli_Click();
  EXPECT_EQ(previsioni("A"), 3);
  EXPECT_EQ(p.servizi.messaggi.back().predefinita, Risposta::No);
  p.servizi.risposta = Risposta::Si;
  frm.btnTogli_Click();
  frm.previsioni.scegli({1});
  frm.btnDuplica_Click();
  EXPECT_EQ(colonna(frm.previsioni, 1), "105|109|109|");
  while (frm.btnAnnulla.Enabled()) frm.btnAnnulla_Click();
  EXPECT_EQ(colonna(frm.previsioni, 1), "102|105|109|");
  scegli("Dieci");
  EXPECT_EQ(frm.previsioni.tabella().righe.size(), 10U);
}

TEST_F(Quadro, WhatHasChangedMeanwhileIsShownAndNotTouched) {
  frm.previsioni.scegli({0});
  scriviMetodoProva(p, "A", {ambata(90), ambata(102)});
  frm.btnDuplica_Click();
  EXPECT_THAT(p.servizi.detti(), ElementsAre(HasSubstr("\"A\" è cambiato")));
  EXPECT_EQ(colonna(frm.previsioni, 1), "90|102|");
  EXPECT_FALSE(frm.btnTogli.Enabled() || frm.btnAnnulla.Enabled());
  frm.previsioni.scegli({0});
  frm.btnDuplica_Click();
  scriviMetodoProva(p, "A", {ambata(90)});
  frm.btnAnnulla_Click();
  EXPECT_THAT(p.servizi.detti().back(), HasSubstr("non si può più annullare"));
  EXPECT_FALSE(frm.btnAnnulla.Enabled()) << "steps before it must not wait for it";
  std::filesystem::remove(p.radice / "Metodi/A.dat");
  frm.Form_Activate();
  EXPECT_EQ(colonna(frm.metodi, 0), "Dieci|Vuoto|");
  EXPECT_EQ(frm.previsioni.tabella().righe.size(), 10U) << "of the first one";
  archivioDi(120).scrivi(p);
  frm.Form_Activate();
  EXPECT_EQ(frm.txtAl.Text(), "120") << "it goes to the last draw, so it follows it";
}

TEST_F(Quadro, AFailureOfTheDiskIsToldAndTheWindowLivesOn) {
  const auto accanto = p.radice / "Metodi/.A.dat.nuovo";  // what is written goes there first
  const auto nonSiScrive = [&](Pulsante& pulsante) {
    std::filesystem::create_directories(accanto / "x");
    pulsante.Click();
    std::filesystem::remove_all(accanto);
    EXPECT_THAT(p.servizi.detti().back(), HasSubstr("Non è stato possibile"));
  };
  frm.previsioni.scegli({0});
  nonSiScrive(frm.btnDuplica);
  EXPECT_THAT(p.servizi.fatti, IsEmpty());
  EXPECT_EQ(previsioni("A"), 3);
  EXPECT_FALSE(frm.btnAnnulla.Enabled());
  frm.btnDuplica_Click();
  nonSiScrive(frm.btnAnnulla);
  EXPECT_EQ(previsioni("A"), 4);
  frm.btnAnnulla_Click();
  EXPECT_EQ(previsioni("A"), 3) << "the step was kept";
  EXPECT_FALSE(frm.btnAnnulla.Enabled());
}

TEST_F(Quadro, APredictionOpensTheCheckOnItsDrawAndAMethodItsComparison) {
  frm.btnCaso_Click();
  EXPECT_THAT(cornice.chiesto, EndsWith("confronto A "));
  frm.previsioni.apri(1);
  EXPECT_THAT(cornice.chiesto, EndsWith("verifica A 105 "));
  scriviMetodoProva(p, "A", {ambata(111)});
  frm.Form_Activate();
  frm.previsioni.apri(0);
  EXPECT_THAT(p.servizi.detti(), ElementsAre(HasSubstr("L'estrazione n. 111 non è nell'archivio")));
}

TEST_F(Quadro, AFolderOfManyMethodsYieldsToTheScreen) {
  for (int n = 0; n < 500; ++n) p.scrivi("Metodi/M" + std::to_string(n) + ".dat", "");
  p.servizi.allaPausa = [&] {
    EXPECT_TRUE(frm.occupata() && frm.prgbar.Visible());
    frm.Form_Activate();  // it is under way
  };
  frm.Form_Activate();
  EXPECT_EQ(p.servizi.pause, 3);
  EXPECT_FALSE(frm.occupata() || frm.prgbar.Visible());
  EXPECT_EQ(frm.metodi.tabella().righe.size(), 503U);
}

}  // namespace
}  // namespace vaticlo::prova
