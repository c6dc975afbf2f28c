#include "dialogs/frm_gestione_metodi.h"
#include "methods/cartella_metodi.h"
#include "operations/gestione_metodi.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

struct Metodi : testing::Test {
  ProgrammaProva p;
  GestioneMetodi gestione{p.programma};
};

TEST_F(Metodi, TheirWindowRenamesAndDeletesAfterAYes) {
  p.scrivi("Metodi/A.dat", "");
  CorniceProva cornice;
  frmGestioneMetodi frm(p.programma, cornice);
  frm.Form_Load();
  frm.btnElimina.Click();
  EXPECT_THAT(p.servizi.detti(), ElementsAre("[Attenzione] Nessun metodo selezionato!"));
  frm.cmbMetodo.scegli(0);
  EXPECT_EQ(frm.txtNome.Text(), "A");
  frm.txtNome.Text("B");
  p.servizi.risposta = Risposta::No;
  frm.btnRinomina.Click();
  frm.btnElimina.Click();
  EXPECT_EQ(p.servizi.messaggi.back().predefinita, Risposta::No);
  EXPECT_THAT(elencaFile(cartellaMetodi(p.cartella())), ElementsAre("A.dat"));
  p.servizi.risposta = Risposta::Si;
  frm.btnRinomina.Click();
  EXPECT_THAT(elencaFile(cartellaMetodi(p.cartella())), ElementsAre("B.dat"));
  EXPECT_EQ(frm.cmbMetodo.Text() + frm.txtNome.Text(), "");
  frm.cmbMetodo.scegli(0);
  frm.btnElimina.Click();
  EXPECT_TRUE(frm.cmbMetodo.voci().empty() && elencaFile(cartellaMetodi(p.cartella())).empty());
}

TEST_F(Metodi, ANameMustBeAFileOnEverySystemAndNew) {
  scriviMetodoProva(p, "Città", {});
  const std::string lungo(256, 'a');
  for (const std::string nome : {"  ",     "a/b",       "..\\b", "a:b",     "a\nb",    "a?",         ".a",
                                 "a.",     "a\xFF",     "nul",   "Aux",     "Com1.x",  "com¹",       "Lpt³.x",
                                 "conin$", "CONOUT$.a", "a.DAT", "a.dat.b", " CITTÀ ", lungo.c_str()}) {
    p.servizi.messaggi.clear();
    EXPECT_FALSE(gestione.crea(nome)) << nome;
    EXPECT_THAT(p.servizi.detti(), ElementsAre(StartsWith("[Attenzione] "))) << nome;
  }
  EXPECT_THAT(elencaFile(cartellaMetodi(p.cartella())), ElementsAre("Città.dat"));
}

TEST_F(Metodi, AMethodIsCreatedRenamedAndDeletedAndNeverReplacesAnother) {
  EXPECT_TRUE(gestione.crea(" Mio 1.5 "));
  EXPECT_EQ(p.contenuto("Metodi/Mio 1.5.dat").size(), 12600U);
  p.scrivi("Metodi/mio.dat", "mio");
  EXPECT_TRUE(gestione.rinomina("mio", "tuo"));
  EXPECT_TRUE(p.servizi.messaggi.empty());
  p.scrivi("Metodi/suo.dat", "altro");
  EXPECT_FALSE(gestione.rinomina("tuo", "mio 1.5"));
  EXPECT_FALSE(gestione.rinomina("tuo", "Suo"));
  EXPECT_FALSE(gestione.rinomina("manca", "altro"));
  EXPECT_FALSE(gestione.elimina("manca"));
  EXPECT_EQ(p.servizi.messaggi.size(), 4U);
  EXPECT_TRUE(gestione.elimina("Mio 1.5"));
  EXPECT_THAT(elencaFile(cartellaMetodi(p.cartella())), ElementsAre("suo.dat", "tuo.dat"));
  EXPECT_EQ(p.contenuto("Metodi/tuo.dat") + p.contenuto("Metodi/suo.dat"), "mioaltro");
}

}  // namespace
}  // namespace vaticlo::prova
