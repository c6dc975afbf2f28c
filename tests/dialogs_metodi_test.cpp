#include "dialogs/elenco_scansione.h"
#include "dialogs/frm_metodi.h"
#include "dialogs/gestione_metodi.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Metodi : public testing::Test {
 protected:
  /// What a window of a scan shows, and whether it can print.
  static std::string stato(const ElencoScansione& frm) {
    return std::string(frm.RichTextBox1.Visible() ? "testo " : "") + (frm.lblPrev.Visible() ? "nota " : "") +
           (frm.prgbar.Visible() ? "prgbar " : "") + (frm.btnStampa.Enabled() ? "stampa" : "");
  }
  /// How many methods the scans of `fai` looked at.
  template <class Fai>
  int guardati(Fai fai) {
    p.servizi.pause = 0;
    fai();
    return p.servizi.pause;
  }
  ProgrammaProva p;
  CorniceProva cornice;
};

TEST_F(Metodi, TheListInPlayFollowsEachChoice) {
  archivioDi(110).scrivi(p);
  for (const char* nome : {"Metodo 1", "X", "Y"}) scriviMetodoProva(p, nome, {});
  scriviMetodoProva(p, "Y", {{.estrazione = 109, .ruote = {1}, .ambate = {7}}});
  frmPrev frm(p.programma, cornice);
  EXPECT_EQ(guardati([&] { frm.Form_Load(); }), 3);
  EXPECT_EQ(cornice.chiesto, "altre ");
  EXPECT_EQ(stato(frm), "testo stampa");
  for (const auto risposta : {Risposta::No, Risposta::Si}) {
    p.servizi.risposta = risposta;
    frm.btnStampa.Click();
  }
  EXPECT_THAT(p.servizi.stampati, ElementsAre(StartsWith(" Previsione n.°1\n Metodo: Y\n")));
  EXPECT_EQ(p.servizi.detti(), std::vector<std::string>(2, "[Ambolino] Stampo la previsione?"));
  EXPECT_EQ(guardati([&] { frm.optSelMetodo_Click(1); }), 2) << "the list's own event and the option's";
  EXPECT_EQ(stato(frm), "nota ");
  EXPECT_EQ(guardati([&] { frm.optSelMetodo_Click(1); }), 1) << "no change in the list";
  EXPECT_EQ(guardati([&] { frm.metodo.cmbMetodo.scegli(3); }), 1);
  EXPECT_EQ(stato(frm), "testo stampa");
  EXPECT_EQ(guardati([&] { frm.optSelMetodo_Click(0); }), 3);
  EXPECT_FALSE(frm.metodo.cmbMetodo.Enabled());
}

TEST_F(Metodi, AnEventDuringAScanWaitsUntilItHasEnded) {
  archivioDi(110).scrivi(p);
  for (const char* nome : {"A", "B", "Metodo 1"}) scriviMetodoProva(p, nome, {});
  scriviMetodoProva(p, "A", {{.estrazione = 109, .ruote = {1}, .ambate = {7}}});
  frmPrev frm(p.programma, cornice);
  frm.Form_Load();
  std::string durante;
  p.servizi.allaPausa = [&] {
    durante += stato(frm) + cornice.chiesto + (frm.metodo.cmbMetodo.Enabled() ? "lista|" : "|");
    if (p.servizi.pause != 2) return;
    cornice.chiesto.clear();
    frm.optSelMetodo_Click(1);
    frm.btnStampa_Click();
    frm.btnCancella_Click();
  };
  EXPECT_EQ(guardati([&] { frm.btnCerca_Click(); }), 3 + 2) << "all methods, then twice the one chosen";
  EXPECT_EQ(durante,
            "prgbar stampaaltre |prgbar stampaaltre |prgbar stampa|prgbar stampalista|prgbar lista|");
  EXPECT_EQ(p.servizi.stampati.size(), 1U);
  EXPECT_EQ(cornice.chiesto, "chiudi ");
  EXPECT_EQ(p.contenuto("PrevGioco.txt"), "") << "the report is that of the last choice";
}

TEST_F(Metodi, TheirWindowRenamesAndDeletesAfterAYes) {
  p.scrivi("Metodi/A.dat", "");
  frmMetodi frm(p.programma, cornice);
  frm.Form_Load();
  frm.btnElimina.Click();
  EXPECT_THAT(p.servizi.detti(), ElementsAre("[Attenzione] Nessun metodo selezionato!"));
  frm.cmbMetodo.scegli(0);
  EXPECT_EQ(frm.txtNome.Text(), "A");
  frm.txtNome.Text("B");
  p.servizi.risposta = Risposta::No;
  frm.btnRinomina.Click();
  frm.btnElimina.Click();
  EXPECT_THAT(p.cartella().elencaMetodi(), ElementsAre("A.dat"));
  p.servizi.risposta = Risposta::Si;
  frm.btnRinomina.Click();
  EXPECT_THAT(p.cartella().elencaMetodi(), ElementsAre("B.dat"));
  frm.cmbMetodo.scegli(0);
  frm.btnElimina.Click();
  EXPECT_TRUE(frm.cmbMetodo.voci().empty() && p.cartella().elencaMetodi().empty());
}

TEST_F(Metodi, ANameMustBeAFileOnEverySystemAndNew) {
  scriviMetodoProva(p, "Città", {});
  GestioneMetodi gestione(p.programma);
  const std::string lungo(256, 'a');
  for (const std::string nome : {"  ", "a/b", "..\\b", "a:b", "a\nb", "a?", ".a", "a.", "nul", "Com1.x",
                                 "a.DAT", "a.dat.b", " CITTÀ ", lungo.c_str()}) {
    p.servizi.messaggi.clear();
    EXPECT_FALSE(gestione.crea(nome)) << nome;
    EXPECT_THAT(p.servizi.detti(), ElementsAre(StartsWith("[Attenzione] "))) << nome;
  }
  EXPECT_THAT(p.cartella().elencaMetodi(), ElementsAre("Città.dat"));
}

TEST_F(Metodi, AMethodIsCreatedRenamedAndDeletedAndNeverReplacesAnother) {
  GestioneMetodi gestione(p.programma);
  EXPECT_TRUE(gestione.crea(" Mio 1.5 "));
  EXPECT_TRUE(p.contenuto("Metodi/Mio 1.5.dat") == std::string(12600, '\0'));
  p.scrivi("Metodi/mio.dat", "mio");
  EXPECT_TRUE(gestione.rinomina("mio", "MIO")) << "upper and lower case alone may change";
  EXPECT_TRUE(p.servizi.messaggi.empty());
  p.scrivi("Metodi/Mio.dat", "altro");
  EXPECT_FALSE(gestione.rinomina("MIO", "mio 1.5"));
  EXPECT_FALSE(gestione.rinomina("MIO", "Mio"));
  EXPECT_FALSE(gestione.rinomina("manca", "altro"));
  EXPECT_FALSE(gestione.elimina("manca"));
  EXPECT_EQ(p.servizi.messaggi.size(), 4U);
  EXPECT_TRUE(gestione.elimina("Mio 1.5"));
  EXPECT_THAT(p.cartella().elencaMetodi(), ElementsAre("MIO.dat", "Mio.dat"));
  EXPECT_EQ(p.contenuto("Metodi/MIO.dat") + p.contenuto("Metodi/Mio.dat"), "mioaltro");
}

}  // namespace
}  // namespace vaticlo::prova
