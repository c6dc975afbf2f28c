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
  /// What the window shows, as "4/4 n.3 12/3/2005": the bar and its end, number and date.
  [[nodiscard]] std::string vista() const {
    const auto& e = frm.estrazione;
    return std::to_string(e.VScroll1.Value()) + "/" + std::to_string(e.VScroll1.Max()) + " n." +
           e.lblnestr.Caption() + " " + e.lbldataestr.Caption();
  }
  [[nodiscard]] Celle riga(int i, int j) const {
    const auto a = ApriArchivio(p.cartella());
    return {a(i, j, 1), a(i, j, 2), a(i, j, 3), a(i, j, 4), a(i, j, 5)};
  }
  [[nodiscard]] std::string archivio() const { return p.contenuto("archivion71.dat"); }
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

TEST_F(Modifica, ASavedDrawKeepsItsDateButForTheCentury) {
  ArchivioProva archivio(2);
  archivio.data(1, 3, 3, 1946).griglia(1, 0, 5) = 9;
  archivio.scrivi(p);
  apri();
  frm.estrazione.VScroll1.Value(2);
  frm.estrazione.txtestr[54].Text("255");
  frm.btnSalva_Click();
  EXPECT_THAT(riga(1, 0), ElementsAre(3, 3, 46, 20, 0));
  EXPECT_THAT(riga(1, 11), ElementsAre(0, 0, 0, 0, 255));
  EXPECT_EQ(cornice.chiesto, "altre ");
}

TEST_F(Modifica, WithoutAYesOrAfterAFailureTheArchiveIsAsItWas) {
  archivioDi(3).scrivi(p);
  apri();
  auto prima = archivio();
  const auto senzaTraccia = [&](void (frmModifica::*fai)(), int numero) {
    EXPECT_EQ(failureDi([&] { return (frm.*fai)(), 0; }), numero);
    EXPECT_TRUE(archivio() == prima);
  };
  auto& ultimo = frm.estrazione.txtestr[54];
  for (const auto& [testo, numero] : {std::pair{"", 13}, {"x", 13}, {"256", 6}}) {
    SCOPED_TRACE(testo);
    ultimo.Text(testo);
    senzaTraccia(&frmModifica::btnSalva_Click, numero);
  }
  ultimo.Text("1");
  p.servizi.risposta = Risposta::No;
  senzaTraccia(&frmModifica::btnSalva_Click, 0);
  senzaTraccia(&frmModifica::btnCancella_Click, 0);
  p.servizi.risposta = Risposta::Si;
  frm.Form_Activate();  // on the free slot, which has no date
  senzaTraccia(&frmModifica::btnSalva_Click, 13);
  archivioDi(15000).scrivi(p);
  prima = archivio();
  senzaTraccia(&frmModifica::btnCancella_Click, 9);
}

TEST_F(Modifica, ADeletionClosesTheGapOfAllRowsButTheNazionale) {
  ArchivioProva archivio(10);
  for (int n = 1; n <= 10; ++n)
    archivio.data(n, n, 3, 2005).ruota(n, 1, {n}).ruota(n, 10, {10 + n}).ruota(n, 11, {20 + n, 1});
  archivio.scrivi(p);
  apri();
  const auto celle = [&](int n) {
    return Celle{riga(n, 0)[0], riga(n, 1)[0], riga(n, 10)[0], riga(n, 11)[0]};
  };
  frm.estrazione.VScroll1.Value(6);
  frm.btnCancella_Click();
  EXPECT_THAT(celle(4), ElementsAre(4, 4, 14, 24));
  EXPECT_THAT(celle(5), ElementsAre(6, 6, 16, 25));
  EXPECT_THAT(celle(10), ElementsAre(0, 0, 0, 30));
  EXPECT_EQ(vista(), "6/10 n.5 6/3/2005");
  EXPECT_EQ(cornice.chiesto, "altre riapri ");
  frm.estrazione.VScroll1.Value(10);
  frm.btnCancella_Click();
  EXPECT_THAT(celle(8), ElementsAre(9, 9, 19, 28));
  EXPECT_EQ(vista(), "9/9 n.9 0/0/000") << "the bar moves to its new end, then the deleted number is shown";
  EXPECT_EQ(p.globals().EstrazioneCorrente, 8);
}

struct Inserisci : testing::Test {
  ProgrammaProva p;
  CorniceProva cornice;
  frmInserisci frm{p.programma, cornice};
};

TEST_F(Inserisci, ANumberIsTestedForItsRangeAndAsATextAgainstTheFieldsAtItsLeft) {
  const std::string valore = "Inserire un valore valido compreso tra 1 e 90";
  const std::string gia = " è stato già inserito come estratto nella ruota";
  const struct {
    const char* nome;
    std::size_t campo;  // the others keep what they have
    const char* testo;
    std::string messaggio;
  } passi[] = {{"blanks", 0, "  ", valore},
               {"zero", 0, "0 ", valore},
               {"above ninety", 0, "91", valore},
               {"ninety", 0, "90", ""},
               {"another number", 1, "5 ", ""},
               {"twice", 2, "90", "''90''" + gia},
               {"twice with the blank", 2, "5 ", "''5 ''" + gia},
               {"the same number as another text", 2, " 5", ""},
               {"twice beyond another field", 4, "5 ", "''5 ''" + gia},
               {"on another wheel", 5, "90", ""},
               {"to its right", 6, "1 ", ""},
               {"now also at its left", 5, "1 ", ""}};
  for (const auto& passo : passi) {
    SCOPED_TRACE(passo.nome);
    p.servizi.messaggi.clear();
    frm.txtestr[passo.campo].Text(passo.testo);
    EXPECT_EQ(frm.txtestr[passo.campo].Validate(), !passo.messaggio.empty());
    EXPECT_EQ(p.servizi.messaggi.empty() ? "" : p.servizi.messaggi[0].testo, passo.messaggio);
  }
}

TEST_F(Inserisci, ADrawWithoutADateIsOfTodayAndAFullArchiveTakesNone) {
  for (auto& campo : frm.txtestr) campo.Text("7");
  for (const auto risposta : {Risposta::No, Risposta::Si}) {
    EXPECT_FALSE(p.esiste("archivion71.dat"));
    p.servizi.risposta = risposta;
    frm.btnSalva_Click();
  }
  EXPECT_EQ(ApriArchivio(p.cartella()).DataEstrazione(1), "14/3/2026");
  EXPECT_THAT(p.servizi.fatti, testing::ElementsAre("Estrazione 1 salvata"));
  archivioDi(15000).scrivi(p);
  EXPECT_EQ(failureDi([&] { return frm.btnSalva_Click(), 0; }), 9);
}

}  // namespace
}  // namespace vaticlo::prova
