#include "dialogs/frm_insprev.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

const SlotProva kAltra = {.estrazione = 3500, .ruote = {3}, .ambate = {9}};

class InsPrev : public testing::Test {
 protected:
  InsPrev() {
    archivioDi(150).scrivi(p);
    scriviMetodoProva(p, "Metodo 1", {});
  }
  /// A new window, filled with a prediction that can be saved.
  frmInsPrev& apri(bool modifica) {
    p.servizi.messaggi.clear();
    cornice.chiesto.clear();
    p.globals().PrevisioneInModifica = modifica;
    frm = std::make_unique<frmInsPrev>(p.programma, cornice);
    frm->Form_Load();
    frm->cmbMetodo.Text("Metodo 1");
    if (modifica) frm->cmbMetodo_Click();
    compila({"", "Ba", "7", "", ""});
    return *frm;
  }
  /// Types into the five fields, in the order of campi().
  void compila(const std::array<const char*, 5>& testi) {
    for (std::size_t n = 0; n < testi.size(); ++n) campi()[n]->Text(testi[n]);
  }
  [[nodiscard]] std::array<CampoTesto*, 5> campi() const {
    return {&frm->txtNum, &frm->txtRuote, &frm->txtAmbate, &frm->txtAmbi, &frm->txtSup};
  }
  /// What the window shows: item of the list, draw, colpi, and the five fields.
  [[nodiscard]] std::string vista() const {
    std::string testo =
        frm->cmbPrevisione.Text() + "|" + frm->estrazione.lblnestr.Caption() + "|" + frm->cmbColpi.Text();
    for (const auto* campo : campi()) testo += "|" + campo->Text();
    return testo;
  }
  /// A stored prediction as the modify variant shows it.
  std::string mostrata(int voce) {
    apri(true).cmbPrevisione.scegli(voce);
    return vista();
  }
  /// The one message so far.
  void detto(const std::string& testo, Icona icona = Icona::Esclamazione) {
    EXPECT_THAT(p.servizi.detti(), ElementsAre(testo));
    EXPECT_EQ(p.servizi.messaggi[0].icona, icona);
  }
  [[nodiscard]] std::string file() const { return p.contenuto("Metodi/Metodo 1.dat"); }
  ProgrammaProva p;
  CorniceProva cornice;
  std::unique_ptr<frmInsPrev> frm;
};

TEST_F(InsPrev, AnotherMethodsNameDropsThePredictionChosen) {
  scriviMetodoProva(p, "Metodo 1", {kAltra});
  apri(true).cmbPrevisione.scegli(0);
  frm->cmbMetodo.digita("Metodo 2");
  EXPECT_TRUE(frm->cmbPrevisione.voci().empty());
  frm->btnElimina_Click();
  detto("[Attenzione] Nessuna previsione selezionata!");
}

TEST_F(InsPrev, ANewPredictionTakesTheFirstSlotWithoutHundreds) {
  scriviMetodoProva(p, "Metodo 1", {kAltra, {57, {89, 9}, {1, 2}, 5, {1, 2, 3}, {4, 5, 99}}});
  apri(false).btnElabora_Click();
  EXPECT_EQ(mostrata(1), "Previsione n.2 del 12/03//2005|150|10||Ba-Ca|7;2;3|4-5|");

  scriviMetodoProva(p, "Metodo 1", std::vector(9, kAltra));
  apri(false).btnElabora_Click();
  EXPECT_EQ(LeggiMetodo(p.cartella(), "Metodo 1").EstrazioneCalcolo(10), 150);
  const auto prima = file();
  apri(false).btnElabora_Click();
  detto("[Attenzione] Il metodo contiene già dieci previsioni!");
  EXPECT_TRUE(file() == prima);
  EXPECT_EQ(failureDi([&] { return apri(true), 0; }), 9) << "a method of ten can't be listed";
}

TEST_F(InsPrev, AModifiedPredictionIsRewrittenWholeInItsSlot) {
  scriviMetodoProva(p, "Metodo 1",
                    {kAltra, {101, {89, 9}, {1, 2}, 5, {1, 2, 3}, {4, 5, 99}, {6, 7, 99}}, kAltra});
  auto& f = apri(true);
  EXPECT_EQ(f.cmbColpi.voci().size(), 30U);
  EXPECT_EQ(f.cmbColpi.voci().back().testo, "30");
  f.cmbPrevisione.scegli(1);
  f.cmbMetodo.digita("Metodo 1");  // typing drops the choice
  f.btnElabora_Click();
  detto("[Attenzione] Errore nella creazione del metodo!");
  f.cmbMetodo_Click();
  f.cmbPrevisione.scegli(1);
  EXPECT_EQ(f.estrazione.lblnestr.Caption(), "101");
  EXPECT_EQ(f.estrazione.VScroll1.Value(), 151) << "the bar does not follow";
  f.estrazione.VScroll1.Value(111);
  compila({"", "Ro", "", "", "6-7"});
  f.btnElabora_Click();
  EXPECT_EQ(cornice.chiesto, "altre riapri ");
  EXPECT_EQ(mostrata(1), "Previsione n.2 del 12/03//2005|110|5||Ro|||6-7");
  EXPECT_EQ(frm->cmbPrevisione.voci().size(), 3U) << "a multiple of 100 hides nothing here";
}

TEST_F(InsPrev, ChoosingAMethodEmptiesItsBetsAndKeepsNumberAndColpi) {
  auto& f = apri(true);
  compila({"899", "Ba", "7", "1-2", "3-4"});
  f.cmbMetodo.scegli(0);
  EXPECT_EQ(vista(), "|150|10|899||||");
  f.txtRuote.Text("Ba");
  f.cmbMetodo.scegli(1);
  EXPECT_EQ(f.txtRuote.Text(), "Ba") << "no further step without a file";
  detto("[Attenzione] Non esiste il file del metodo selezionato!", Icona::Nessuna);
}

TEST_F(InsPrev, ADeleteAlwaysFails) {
  scriviMetodoProva(p, "Metodo 1", {kAltra});
  const auto prima = file();
  apri(true).btnElimina_Click();
  detto("[Attenzione] Nessuna previsione selezionata!");
  frm->cmbPrevisione.scegli(0);
  for (const auto risposta : {Risposta::No, Risposta::Si}) {
    p.servizi.risposta = risposta;
    frm->btnElimina_Click();
  }
  const auto* domanda = "[Attenzione] Sicuro di eliminare la previsione?";
  EXPECT_EQ(p.servizi.messaggi[1].predefinita, Risposta::No);
  EXPECT_THAT(p.servizi.detti(), ElementsAre(testing::_, domanda, domanda,
                                             "[Attenzione] Errore nell'eliminaizione della previsione!"));
  EXPECT_TRUE(file() == prima);
}

TEST_F(InsPrev, TheFieldBesideTheBarGoesToANumberOrADate) {
  auto archivio = archivioDi(150);
  archivio.data(77, 5, 4, 2005).scrivi(p);
  apri(false);
  for (const auto& [scritto, mostrata] :
       {std::pair{"1", "1"}, {"150", "150"}, {" 20", "20"}, {"05/04/2005", "77"}, {"5.4.05", "77"}}) {
    frm->txtVai.Text(scritto);
    frm->txtVai_Invio();
    EXPECT_EQ(frm->estrazione.lblnestr.Caption(), mostrata) << scritto;
  }
  EXPECT_THAT(p.servizi.detti(), IsEmpty());
  for (const char* scritto : {"0", "151", "12,7", "1/1/2030", "ieri", ""}) {
    frm->txtVai.Text(scritto);
    frm->txtVai_Invio();
    EXPECT_EQ(frm->estrazione.lblnestr.Caption(), "77") << scritto;
  }
  EXPECT_EQ(p.servizi.messaggi.size(), 6U);
  archivioDi(0).scrivi(p);
  apri(false).txtVai.Text("1");
  frm->txtVai_Invio();
  detto("[Attenzione] L'archivio non contiene ancora estrazioni!");
}

TEST_F(InsPrev, AWheelButtonPutsItsWheelInAndTakesItAway) {
  apri(false).txtRuote.Text("");
  for (const auto& [codice, ruote] :
       {std::pair{8, "Ro"}, {1, "Ro-Ba"}, {12, "Ro-Ba-Tutte"}, {1, "Ro-Tutte"}, {8, "Tutte"}, {12, ""}}) {
    frm->btnRuota.at(static_cast<std::size_t>(codice - 1)).Click();
    EXPECT_EQ(frm->txtRuote.Text(), ruote);
  }
  frm->btnRuota[0].Click();
  EXPECT_EQ(frm->lblLettura.Caption(), "Si gioca: ambata 7 · Bari · 10 colpi");
}

}  // namespace
}  // namespace vaticlo::prova
