#include <gmock/gmock.h>

#include "dialogs/frm_statistica.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/failure_prova.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {
namespace {

using testing::HasSubstr;

class Statistica : public testing::Test {
 protected:
  Statistica() {
    auto archivio = archivioDi(110, "103 Ba 7");
    archivio.data(1, 3, 1, 1899).data(2, 10, 1, 1999).data(3, 29, 1, 2000).data(4, 30, 3, 2000);
    archivio.data(5, 31, 3, 2000).data(110, 20, 3, 2005).scrivi(p);
    p.globals().MetodoScelto = 1;
    frm.Form_Load();
  }
  void elabora(const std::string& inizio, const std::string& fine) {
    p.servizi.messaggi.clear();
    frm.txtestr[0].Text(inizio);
    frm.txtestr[1].Text(fine);
    frm.btnElabora_Click();
  }
  /// What can be seen and what can be pressed.
  [[nodiscard]] std::string stato() const {
    std::string testo;
    for (const auto& [si, nome] : {std::pair{frm.prgbar.Visible(), "prgbar "},
                                   {frm.RichTextBox1.Visible(), "testo "},
                                   {frm.btnElabora.Enabled(), "elabora "},
                                   {frm.btnCancella.Enabled(), "esci "},
                                   {frm.btnStop.Enabled(), "stop "},
                                   {frm.btnVincite.Enabled(), "vincite "},
                                   {frm.btnPrev.Enabled(), "prev "},
                                   {frm.btnStampa.Enabled(), "stampa "}})
      testo += si ? nome : "";
    return testo;
  }
  ProgrammaProva p;
  CorniceProva cornice;
  frmStatistica frm{p.programma, cornice};
};

TEST_F(Statistica, OpensWithARangeUpToTheLastDraw) {
  EXPECT_EQ(stato(), "testo elabora esci ");
  EXPECT_EQ(cornice.chiesto, "altre ");
  EXPECT_EQ(frm.txtestr[0].Text() + "-" + frm.txtestr[1].Text(), "6877-110");
  EXPECT_EQ(frm.txtestr[0].Mask() + frm.txtestr[1].Mask(), "");
  EXPECT_EQ(frm.DTInizio.Value(), dataDaTesto("3/1/2000"));
  EXPECT_EQ(frm.DTInizio.MaxDate(), p.servizi.giornoDiOggi);
  EXPECT_EQ(frm.DTFine.Value(), p.servizi.giornoDiOggi);
  frm.metodo.optSelMetodo_Click(1);
  EXPECT_EQ(frm.metodo.cmbMetodo.Text(), "Metodo 1");
  EXPECT_FALSE(p.esiste("Stat.txt")) << "the choice of a method starts no run";
}

TEST_F(Statistica, ARangeIsRefusedOrRepairedInThisOrder) {
  const std::string inizio = "[Attenzione] L'estrazione di inzio non può essere ";
  const std::string maggiore = inizio + "maggiore dell'estrazione di fine!";
  const std::string uguale = inizio + "uguale all'estrazione di fine!";
  const struct {
    const char *inizio, *fine;
    std::string messaggio;
    const char *inizioDopo, *fineDopo;
  } casi[] = {
      {"6", "5", maggiore, "6", "5"},   {"5", "5", uguale, "5", "5"}, {"0", "0", uguale, "0", "0"},
      {"0", "1", "", "1", "1"},         {"0", "111", "", "1", "110"}, {"109", "110", "", "109", "110"},
      {"120", "130", "", "120", "110"}, {"-3", "2", "", "-3", "2"},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.inizio + std::string(" ") + caso.fine);
    elabora(caso.inizio, caso.fine);
    const bool rifiutato = !caso.messaggio.empty();
    EXPECT_EQ(p.servizi.detti(), rifiutato ? std::vector{caso.messaggio} : std::vector<std::string>{});
    EXPECT_EQ(frm.txtestr[0].Text(), caso.inizioDopo);
    EXPECT_EQ(frm.txtestr[1].Text(), caso.fineDopo);
    EXPECT_EQ(stato(), rifiutato ? "elabora esci " : "testo elabora esci stampa ");
    EXPECT_EQ(p.contenuto("Stat.txt") == "\r\n", rifiutato);
    EXPECT_EQ(frm.RichTextBox1.Text() == "\n", rifiutato);
  }
  for (const auto& [testo, numero] : {std::pair{"", 13}, {"x", 13}, {"40000", 6}}) {
    frm.txtestr[1].Text(testo);
    EXPECT_EQ(failureDi([this] { return frm.btnElabora_Click(), 0; }), numero);
  }
}

TEST_F(Statistica, ARunOffersWhatItFound) {
  // Draw 102 wins, 105 loses, 109 is in play.
  std::vector<SlotProva> slot;
  for (const int estrazione : {102, 105, 109})
    slot.push_back({.estrazione = estrazione, .ruote = {1}, .colpi = 2, .ambate = {7}});
  scriviMetodoProva(p, "M", slot);
  std::string durante;
  p.servizi.allaPausa = [&] { durante = stato(); };
  elabora("101", "110");
  EXPECT_EQ(durante, "prgbar stop ");
  EXPECT_EQ(cornice.chiesto, "altre lavoro libera ");
  EXPECT_EQ(stato(), "testo elabora esci vincite prev stampa ");
  EXPECT_THAT(frm.RichTextBox1.Text(), HasSubstr("\n\nPrevisioni Giocabili: 3\n"));
  frm.btnStampa_Click();
  EXPECT_EQ(p.servizi.detti()[0], "[Ambolino] Stampo la statistica?");
  EXPECT_EQ(p.servizi.stampati, std::vector{frm.RichTextBox1.Text()});
  elabora("104", "106");
  EXPECT_EQ(stato(), "testo elabora esci stampa ") << "entries of lost predictions are not offered";
  frm.metodo.scegliNome("Metodo 2");
  elabora("101", "110");
  EXPECT_THAT(frm.RichTextBox1.Text(), HasSubstr("\n\nPrevisioni Giocabili: 0\n"));
  EXPECT_TRUE(p.esiste("Metodi/Metodo 2.dat"));
  frm.metodo.optSelMetodo_Click(0);
  p.servizi.allaPausa = [this] { frm.btnStop_Click(); };
  elabora("101", "110");
  EXPECT_EQ(stato(), "elabora esci ");
  EXPECT_EQ(p.servizi.pause, 10 + 3 + 10 + 1);
  EXPECT_EQ(p.contenuto("Stat.txt"), "");
}

TEST_F(Statistica, ADatePickedGivesTheNumberOfItsDraw) {
  const std::vector<std::string> casi = {"3/1/1899",  "1",   "10/1/1999", "2",     "28/1/2000", "3",
                                         "31/1/2000", "5",   "1/3/2000",  "4",     "13/3/2005", "110",
                                         "21/3/2005", "110", "1/4/2005",  "15001", "1/2/1899",  "15001"};
  for (std::size_t n = 0; n < casi.size(); n += 2) {
    frm.DTInizio.Value(dataDaTesto(casi[n]));
    frm.DTInizio.Change();
    EXPECT_EQ(frm.txtestr[0].Text(), casi[n + 1]) << casi[n];
  }
  frm.DTFine.Value(dataDaTesto("29/1/2000"));
  frm.DTFine.Change();
  EXPECT_EQ(frm.txtestr[1].Text(), "3");
}

}  // namespace
}  // namespace vaticlo::prova
