#include "dialogs/avvisi.h"
#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_metodo.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_principale.h"
#include "dialogs/frm_somdif.h"
#include "dialogs/frm_statistica.h"
#include "dialogs/pagina_iniziale.h"
#include "platform/blocco.h"
#include "platform/presenza.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

struct Principale : testing::Test {
  [[nodiscard]] std::string aperte() const {
    std::string captions;
    for (const auto& aperta : principale.finestre()) captions += aperta.finestra->Caption() + "|";
    return captions;
  }
  /// Imports a file of that many draws; the 7 comes out in Bari on the third alone.
  void importa(int estrazioni) {
    std::string testo;
    for (int n = 1; n <= estrazioni; ++n)
      testo += "2005/03/0" + std::to_string(n) + "\tBA\t" + (n == 3 ? "7" : "8") + "\t11\t12\t13\t14\n";
    p.scrivi("estrazioni.txt", testo);
    p.servizi.scelto = p.radice / "estrazioni.txt";
    principale.comando("mnu1Importa");
  }
  ProgrammaProva p;
  frmPrincipale principale{p.programma};
};

TEST_F(Principale, TwentyDropDownKeysChooseAMethodAndAWindowAndNoOthersDo) {
  archivioDi(3).scrivi(p);
  for (const std::string cifra : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"})
    for (const auto& [chiave, aperta] : {std::pair{"NumPrev", "Vaticla|"}, {"NumStat", "Statistica|"}}) {
      p.globals().MetodoScelto = 0;
      principale.Toolbar1_ButtonMenuClick(chiave + cifra);
      EXPECT_EQ(p.globals().MetodoScelto, cifra.empty() ? 1 : std::stoi(cifra) + 1) << chiave << cifra;
      EXPECT_EQ(aperte(), aperta) << chiave << cifra;
    }
  principale.comando("mnu1Inserisci");
  for (const char* chiave : {"NumPrev0", "NumStat10", "NumPrevA", "NumStat ", "Num2", "Sirvan2", ""}) {
    principale.Toolbar1_ButtonMenuClick(chiave);
    principale.Toolbar1_ButtonClick(chiave);
    EXPECT_EQ(aperte(), "Inserimento Estrazioni|") << chiave;
    EXPECT_EQ(p.globals().MetodoScelto, 10) << chiave;
  }
}

TEST_F(Principale, WarnsAsLongAsThereIsACause) {
  archivioDi(3).scrivi(p);
  const Presenza questa(p.radice);
  const auto detti = [&] {
    std::string testi;
    for (const auto& avviso : avvisi(principale, questa)) testi += avviso.testo.substr(0, 14) + "|";
    return testi;
  };
  EXPECT_EQ(detti(), "");
  principale.Toolbar1_ButtonClick("Sirvan1");
  EXPECT_EQ(detti(), "Dalla barra la|");
  principale.comando("mnu1metodo1");
  EXPECT_EQ(detti(), "");
  principale.Toolbar1_ButtonMenuClick("NumStat2");
  {
    const Presenza altra(p.radice / ".");
    EXPECT_EQ(detti(), "Dalla barra la|Un'altra copia|");
    EXPECT_NO_THROW(BloccoCartella(p.radice, std::chrono::milliseconds(0)));
  }
  EXPECT_EQ(detti(), "Dalla barra la|");
  principale.chiudiTutte();
  EXPECT_EQ(detti(), "");
  EXPECT_FALSE(Presenza(p.radice / "manca").altre());
}

TEST_F(Principale, TheAboutWindowClosesTheOthersWhicheverWayItIsAskedFor) {
  for (const bool giaAperta : {false, true})
    for (const bool dallaBarra : {false, true}) {
      if (giaAperta) principale.comando("mnuInformazioni2");
      principale.comando("mnuUtility3");
      dallaBarra ? principale.Toolbar1_ButtonClick("Info") : principale.comando("mnuInformazioni2");
      EXPECT_EQ(aperte(), "Informazione su|") << giaAperta << dallaBarra;
    }
}

TEST_F(Principale, TheEditorKeepsItsVariantUntilTheMenuAsksForTheOther) {
  archivioDi(150).scrivi(p);
  const SlotProva slot = {.estrazione = 101, .ruote = {1}, .ambate = {7}};
  scriviMetodoProva(p, "Metodo 1", {slot});
  principale.comando("mnuGestione22");
  const auto editor = [&] { return principale.aperta<frmInsPrev>(); };
  p.globals().PrevisioneInModifica = false;  // whoever sets it, the window is what it was opened as
  editor()->cmbMetodo.scegli(0);
  editor()->cmbPrevisione.scegli(0);
  editor()->btnElabora_Click();
  EXPECT_EQ(LeggiMetodo(p.cartella(), "Metodo 1").EstrazioneCalcolo(2), 0) << "no second prediction";
  EXPECT_EQ(aperte(), "Modifica Previsione|") << "the window that follows a save";
  const auto* prima = editor();
  principale.comando("mnuGestione22");
  EXPECT_EQ(editor(), prima);
  principale.comando("mnuGestione21");
  EXPECT_EQ(aperte(), "Inserisci Previsione|");
  EXPECT_FALSE(editor()->Frame10.Visible());
}

TEST_F(Principale, WithANewArchiveDrawWindowsCloseAndTheOthersTakeItsLastDraw) {
  scriviMetodoProva(p, "M", {{.estrazione = 2, .ruote = {1}, .colpi = 3, .ambate = {7}}});
  for (const auto comando : {"mnu1Inserisci", "mnu1Modifica", "mnuGestione22"}) {
    archivioDi(2).scrivi(p);
    principale.comando(comando);
    importa(4);
    EXPECT_EQ(aperte(), "");
  }
  archivioDi(2).scrivi(p);
  principale.comando("mnuMetodi");
  auto& vaticla = *principale.aperta<frmMetodo>();
  EXPECT_EQ(vaticla.txtingioco.Text() + vaticla.txtvincenti.Text(), "10");
  importa(2);  // as many draws as before, one of them another one
  vaticla.estrazione.VScroll1.Value(3);
  importa(4);
  EXPECT_EQ(vaticla.estrazione.lblnestr.Caption(), "4");
  vaticla.estrazione.VScroll1.Value(3);
  EXPECT_EQ(vaticla.txtingioco.Text() + vaticla.txtvincenti.Text(), "01");
  vaticla.estrazione.VScroll1.Value(5);
  principale.comando("mnuUtility3");
  archivioDi(4).scrivi(p);
  principale.archivioNuovo();  // as many draws as before
  EXPECT_EQ(vaticla.estrazione.lblnestr.Caption(), "4");
  EXPECT_EQ(vaticla.lblNota.Caption(), "Nessuna previsione su questa estrazione");
  auto& somdif = *principale.aperta<frmSomdif>();
  EXPECT_EQ(somdif.lblnestr.Caption() + " " + somdif.colonne[0][0].Text(), "4 0");
  principale.comando("mnu1metodo1");
  importa(6);
  auto& statistica = *principale.aperta<frmStatistica>();
  EXPECT_EQ(statistica.txtestr[1].Text(), "6");
  statistica.txtestr[0].Text("2");
  statistica.txtestr[1].Text("9");
  importa(8);
  EXPECT_EQ(statistica.txtestr[1].Text(), "9") << "typed by the user";
  statistica.txtestr[0].Text("2");
  statistica.btnElabora_Click();
  EXPECT_EQ(statistica.txtestr[1].Text(), "8");
}

TEST_F(Principale, AnUpdateLeavesTheOpenWindowWithWhatItShows) {
  archivioDi(2).scrivi(p);
  principale.comando("mnu1Modifica");
  archivioDi(4).scrivi(p);  // what the update fetched
  principale.comando("mnu1Aggiorna");
  EXPECT_EQ(aperte(), "Modifica Estrazione|");
  EXPECT_EQ(principale.aperta<frmModifica>()->estrazione.lblnestr.Caption(), "2");
}

TEST(PaginaIniziale, SaysHowLongAgoTheLastDrawWas) {
  Situazione situazione;
  situazione.estrazioni = 1234;
  const std::chrono::sys_days ultima = *(situazione.ultima = dataDiCalendario(28, 2, 2021));
  std::string detto;
  for (const int dopo : {-1, 0, 1, 2, 1001})
    detto += paginaIniziale(situazione, ultima + std::chrono::days{dopo}).archivio + "|";
  const std::string inizio = "1.234 estrazioni, l'ultima del 28/02/2021";
  EXPECT_EQ(detto, inizio + "|" + inizio + ", oggi|" + inizio + ", ieri|" + inizio + ", 2 giorni fa|" +
                       inizio + ", 1.001 giorni fa|");
}

TEST(PaginaIniziale, SaysHowManyItLeavesOut) {
  Situazione situazione;
  situazione.inGioco.resize(7);
  situazione.vinteAllUltima.resize(8);
  situazione.daGuardare.resize(7);
  std::string ultime;
  for (const auto& sezione : paginaIniziale(situazione, {}).sezioni) ultime += sezione.righe.back() + "|";
  EXPECT_EQ(ultime, "e altre 2|e un'altra|e un altro|");
}

TEST_F(Principale, TheTwoPagesOfTheGameAreTheOnesNamed) {
  principale.comando("mnuUtility6");
  principale.comando("mnuUtility7");
  EXPECT_THAT(p.servizi.pagine, ElementsAre(HasSubstr("lotto-italia.it"), HasSubstr("adm.gov.it")));
}

TEST_F(Principale, ClosingDeletesTheReportOfTheCheckAloneAndNoFolderOfItsName) {
  p.scrivi("Esiti.txt", "esiti");
  p.scrivi("Stat.txt", "totali");
  principale.Form_Unload();
  EXPECT_FALSE(p.esiste("Esiti.txt"));
  EXPECT_EQ(p.contenuto("Stat.txt"), "totali");
  std::filesystem::create_directories(p.radice / "Esiti.txt/dentro");
  principale.Form_Unload();
  std::filesystem::remove(p.radice / "Esiti.txt/dentro");
  principale.Form_Unload();
  EXPECT_TRUE(p.esiste("Esiti.txt"));
}

}  // namespace
}  // namespace vaticlo::prova
