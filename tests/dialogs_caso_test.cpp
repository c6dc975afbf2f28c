#include "dialogs/frm_caso.h"
#include "dialogs/frm_ritardi.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// One prediction that wins on the only draw that has its wheel, and one that is still in play.
struct Caso : testing::Test {
  Caso() {
    archivioDi(120, "103 Ba 7 8 9 10 11").scrivi(p);
    scriviMetodoProva(p, "Mio",
                      {{.estrazione = 102, .ruote = {1}, .colpi = 2, .ambate = {7}},
                       {.estrazione = 119, .ruote = {1}, .colpi = 2, .ambate = {7}}});
    frm.Form_Load();
  }
  /// What the window says of the runs: the sentence and the figures.
  std::string esito() { return frm.lblFrase.Caption() + "\n" + testoCsv(frm.cifre.tabella()); }

  ProgrammaProva p;
  CorniceProva cornice;
  frmCaso frm{p.programma, cornice};
};

TEST_F(Caso, ASeedGivesTheSameRunsAndTheSentenceSaysWhatTheyMean) {
  frm.txtprove.Text("300");
  frm.btnElabora_Click();
  EXPECT_THAT(esito(), StartsWith("Mio: 100% di vincenti; per caso se ne attendono 5,6%: "));
  EXPECT_EQ(frm.lblRimasto.Caption(), "300 prove col seme 1");
  EXPECT_EQ(frm.lblAvvertenza.Caption(), "");
  EXPECT_EQ(cornice.chiesto, "altre lavoro libera ");
  const auto prima = esito();
  frm.txtseme.Text("2");
  frm.btnElabora_Click();
  EXPECT_NE(esito(), prima);
  frm.txtseme.Text("1");
  frm.btnElabora_Click();
  EXPECT_EQ(esito(), prima);

  EXPECT_THAT(frm.grafico.disegno().posti, ElementsAre(0, 1));
  EXPECT_THAT(frm.grafico.disegno().letture,
              ElementsAre(StartsWith("0 vincenti: "), StartsWith("1 vincente: ")));
  frm.optFigura_Click(FiguraCaso::Colpi);
  EXPECT_EQ(frm.grafico.disegno().serie.at(0).valori, (std::vector<double>{1, 0}));
  EXPECT_NEAR(frm.grafico.disegno().serie.at(1).valori.at(0), 1.0 / 18, 1e-9);
  frm.optFigura_Click(FiguraCaso::Tempo);
  EXPECT_EQ(frm.grafico.disegno().serie.size(), 3U) << "band, expected, won";

  scriviMetodoProva(p, "Altro", {{.estrazione = 102, .ruote = {1}, .colpi = 1, .ambate = {8}}});
  frm.btnElabora_Click();
  EXPECT_EQ(frm.confronti.tabella().righe.size(), 3U);
  EXPECT_THAT(frm.lblFrase.Caption(), StartsWith("Mio: ")) << "the method chosen before";
  EXPECT_THAT(frm.lblAvvertenza.Caption(), StartsWith("Di 2 metodi"));
}

TEST_F(Caso, AStopKeepsTheRunsThatAreDone) {
  frm.txtprove.Text("1000000");
  p.servizi.allaPausa = [&] {
    EXPECT_TRUE(frm.occupata());
    EXPECT_FALSE(frm.btnElabora.Enabled());
    frm.interrompi();
  };
  frm.btnElabora_Click();
  EXPECT_THAT(frm.lblRimasto.Caption(), StartsWith("Fermato dopo "));
  EXPECT_THAT(frm.lblRimasto.Caption(), EndsWith(" su 1000000"));
  EXPECT_EQ(frm.confronti.tabella().righe.size(), 1U);
  EXPECT_FALSE(frm.occupata());
  EXPECT_TRUE(frm.btnElabora.Enabled());
}

TEST_F(Caso, WhatCannotBeRunIsRefusedInWords) {
  const struct {
    std::function<void()> cambia;
    const char* detto;
  } passi[] = {{[&] { frm.estrazioni.txtestr[1].Text("121"); },
                "[Attenzione] Il numero di un'estrazione dev'essere compreso tra 1 e 120!"},
               {[&] { frm.estrazioni.txtestr[0].Text("9"), frm.estrazioni.txtestr[1].Text("8"); },
                "[Attenzione] La prima estrazione non può venire dopo l'ultima!"},
               {[&] { frm.estrazioni.txtestr[1].Text("120"), frm.txtprove.Text("0"); },
                "[Attenzione] Le prove devono essere da 1 a 1000000!"},
               {[&] { frm.txtprove.Text("10"), frm.txtseme.Text(""); },
                "[Attenzione] Il seme dev'essere un numero da 0 a 999999999!"},
               {[&] { frm.txtseme.Text("3"), frm.metodo.scegliNome("Nessuno"); },
                "[Attenzione] Non esiste il file del metodo selezionato!"}};
  for (const auto& [cambia, detto] : passi) {
    p.servizi.messaggi.clear();
    cambia();
    frm.btnElabora_Click();
    EXPECT_THAT(p.servizi.detti(), ElementsAre(detto));
  }
  EXPECT_FALSE(p.esiste("Metodi/Nessuno.dat"));
  frm.metodo.scegliNome("Mio");
  frm.estrazioni.txtestr[0].Text("119");
  frm.btnElabora_Click();
  EXPECT_EQ(frm.lblFrase.Caption(), "Nessuna previsione conclusa in queste estrazioni.");
}

TEST(TempoRimasto, IsToldInWords) {
  using namespace std::chrono_literals;
  EXPECT_EQ(testoRimasto(0, 10, 5s), "");
  EXPECT_EQ(testoRimasto(5, 10, 1s), "ancora 1 secondo");
  EXPECT_EQ(testoRimasto(1, 10, 2s), "ancora 18 secondi");
  EXPECT_EQ(testoRimasto(1, 121, 1s), "ancora 2 minuti");
}

TEST(RitardiEFrequenze, FollowEveryChoice) {
  ProgrammaProva p;
  CorniceProva cornice;
  archivioDi(9, "2 Ba 1 2 3 4 5,4 Ba 6 7 8 9 10,7 Ba 6 14 15 16 17,8 Ca 18 40 41 42 43").scrivi(p);
  frmRitardi frm(p.programma, cornice);
  frm.Form_Load();
  const auto prima = [&] {
    const auto riga = frm.righe.mostrate().at(0);
    return testoCella(frm.righe.cella(riga, 0)) + " " + testoCella(frm.righe.cella(riga, 2));
  };
  const auto barre = [&] { return frm.grafico.disegno().nomi; };
  EXPECT_EQ(prima(), "11 3") << "never out in three draws of Bari";
  EXPECT_THAT(frm.lblFrase.Caption(),
              StartsWith("3 estrazioni su Bari: ogni numero vi è atteso per caso 0,2 volte."));
  EXPECT_EQ(barre().size(), 90U);
  frm.optMisura_Click(MisuraRitardi::Frequenza);
  EXPECT_EQ(prima(), "6 0");
  EXPECT_EQ(barre().front(), "6");
  EXPECT_EQ(frm.grafico.disegno().titolo, "I numeri più frequenti su Bari");
  frm.optSorte_Click(Sorte::Ambi);
  EXPECT_EQ(frm.righe.tabella().righe.size(), 4005U);
  EXPECT_EQ(frm.grafico.disegno().descrizione, "In testa 1-2 con 1 uscita.");
  frm.estrazioni.txtestr[0].Text("3");
  frm.estrazioni.txtestr[0].Change();
  EXPECT_EQ(barre().front(), "6-7");
  frm.estrazioni.txtestr[0].Text("30");  // not yet a draw: what is shown stays
  frm.estrazioni.txtestr[0].Change();
  EXPECT_EQ(barre().front(), "6-7");
  EXPECT_EQ(frm.estrazioni.lblDate.Caption(), "da 1 a 9");
  frm.cmbRuota.scegli(1);
  frm.optSorte_Click(Sorte::Numeri);
  frm.optMisura_Click(MisuraRitardi::Massimo);
  EXPECT_EQ(frm.grafico.disegno().titolo, "Gli ambi con il ritardo massimo più lungo su Bari");
  frm.optSorte_Click(Sorte::Ambi);
  frm.estrazioni.txtestr[0].Text("1");
  frm.cmbRuota.scegli(7);
  EXPECT_EQ(frm.lblFrase.Caption(), "Nessuna estrazione su Roma in questo intervallo.");
  EXPECT_TRUE(barre().empty());
  frm.cmbRuota.scegli(11);
  EXPECT_THAT(frm.lblFrase.Caption(), StartsWith("4 estrazioni su tutte le ruote: ogni ambo"));
  EXPECT_EQ(barre().size(), 90U);
  frm.estrazioni.txtestr[0].Text("30");
  frm.archivioNuovo();
  EXPECT_TRUE(barre().empty() && frm.righe.tabella().righe.empty() && frm.lblFrase.Caption().empty());
}

}  // namespace
}  // namespace vaticlo::prova
