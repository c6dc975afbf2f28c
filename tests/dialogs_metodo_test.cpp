#include "dialogs/frm_metodo.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(Vaticla, AnEmptyArchiveIsShownAndNotChecked) {
  ProgrammaProva p;
  CorniceProva cornice;
  frmMetodo frm(p.programma, cornice);
  frm.Form_Load();
  EXPECT_EQ(frm.estrazione.lblnestr.Caption() + " " + frm.estrazione.lbldataestr.Caption(), "1 0/0/000");
  EXPECT_FALSE(p.esiste("Esiti.txt"));
}

TEST(Vaticla, ACheckRunsWhenTheDrawOrTheChoiceOfMethodsChanges) {
  ProgrammaProva p;
  CorniceProva cornice;
  archivioDi(9).scrivi(p);
  frmMetodo frm(p.programma, cornice);
  auto& barra = frm.estrazione.VScroll1;
  auto& lista = frm.metodo.cmbMetodo;
  const auto cerca = [&](const char* testo) {
    return [&, testo] {
      p.servizi.digitato = testo;
      frm.btnTrova_Click();
    };
  };
  const struct {
    const char* nome;
    std::function<void()> fai;
    bool verifica;  // whether a check runs
  } eventi[] = {{"opening", [&] { frm.Form_Load(); }, true},
                {"the bar moves", [&] { barra.Value(2); }, true},
                {"the bar stays", [&] { barra.Value(2); }, false},
                {"the other value of draw 1", [&] { barra.Value(1); }, true},
                {"Scegli", [&] { frm.optSelMetodo_Click(1); }, true},
                {"a name typed", [&] { lista.digita("Altro"); }, false},
                {"Scegli once more", [&] { frm.optSelMetodo_Click(1); }, true},
                {"an item of the list", [&] { lista.scegli(1); }, true},
                {"Tutti", [&] { frm.optSelMetodo_Click(0); }, true},
                {"a search", cerca("5"), true},
                {"a search of the draw shown", cerca("5"), false},
                {"a search by date", cerca("12/3/2005"), true},
                {"a search that is refused", cerca("x"), false}};
  for (const auto& evento : eventi) {
    if (p.esiste("Esiti.txt")) p.scrivi("Esiti.txt", "as it was");
    evento.fai();
    EXPECT_EQ(p.contenuto("Esiti.txt") != "as it was", evento.verifica) << evento.nome;
    if (evento.nome == std::string("a search")) {
      EXPECT_THAT(p.servizi.domande[0].first, HasSubstr("dell'estrazione (compreso tra 1 e 9) da"));
    }
    if (evento.nome == std::string("Scegli once more")) {
      EXPECT_EQ(lista.Text(), "Altro") << "the name stays";
    }
  }
}

TEST(Vaticla, JumpsToDrawsWithPredictionsAndMarksWhatHasWonBesideTheReport) {
  ProgrammaProva p;
  CorniceProva cornice;
  archivioDi(150, "103 Ba 7 8, 104 Ca 7").scrivi(p);
  scriviMetodoProva(p, "Metodo 1",
                    {{.estrazione = 102, .ruote = {1}, .colpi = 3, .ambate = {7}},
                     {.estrazione = 102, .ruote = {2}, .colpi = 1, .ambate = {7}},
                     {.estrazione = 148, .ruote = {1}, .colpi = 9, .ambate = {7}}});
  scriviMetodoProva(p, "Metodo 2",
                    {{.estrazione = 101, .ruote = {1}, .colpi = 2, .ambi = {7, 8, 99}}, {.estrazione = 151}});
  frmMetodo frm(p.programma, cornice);
  frm.Form_Load();
  // The lines that stand out, each with the letter of its tone: V has won, A waits, N is lost.
  const auto tono = [&] {
    std::string toni;
    for (const auto& rilievo : frm.RichTextBox1.Rilievi())
      toni += std::to_string(rilievo.riga) + "VAN"[static_cast<int>(rilievo.tono)] + ' ';
    return toni;
  };
  const std::string vuota = "Nessuna previsione su questa estrazione";
  const struct {
    const char* nome;
    std::function<void()> fai;
    const char* estrazione;  // shown then
    std::string nota;
    const char* righe;
  } passi[] = {{"opening", [] {}, "150", vuota, ""},
               {"next of the last one", [&] { frm.btnSeguente_Click(); }, "150",
                "Non ci sono previsioni dopo questa estrazione", ""},
               {"previous", [&] { frm.btnPrecedente_Click(); }, "148", "", "7A "},
               {"previous, over empty draws", [&] { frm.btnPrecedente_Click(); }, "102", "", "6V 14N "},
               {"previous of another method", [&] { frm.btnPrecedente_Click(); }, "101", "", "6V "},
               {"previous of the first one", [&] { frm.btnPrecedente_Click(); }, "101",
                "Non ci sono previsioni prima di questa estrazione", "6V "},
               {"Metodo 1", [&] { frm.optSelMetodo_Click(1); }, "101", vuota, ""},
               {"next of Metodo 1", [&] { frm.btnSeguente_Click(); }, "102", "", "6V 14N "},
               {"a draw with numbers that have won",
                [&] { frm.optSelMetodo_Click(0), frm.estrazione.VScroll1.Value(104); }, "103",
                vuota + " · In verde i numeri vincenti", ""}};
  for (const auto& passo : passi) {
    SCOPED_TRACE(passo.nome);
    passo.fai();
    EXPECT_EQ(frm.estrazione.lblnestr.Caption(), passo.estrazione);
    EXPECT_EQ(frm.lblNota.Caption(), passo.nota);
    EXPECT_EQ(tono(), passo.righe);
  }
  const auto& bari = frm.estrazione.txtestr;
  EXPECT_EQ(bari[0].Rilievo(),
            "Ambo 7-8 Ba al 2°colpo (Metodo 2, estrazione 101)\n"
            "Ambata 7 Ba al 1°colpo (Metodo 1, estrazione 102)");
  EXPECT_EQ(bari[1].Rilievo(), "Ambo 7-8 Ba al 2°colpo (Metodo 2, estrazione 101)");
  EXPECT_EQ(bari[2].Rilievo(), "");
  for (const auto& campo : bari) EXPECT_EQ(campo.BackColor(), kGrigio);
}

}  // namespace
}  // namespace vaticlo::prova
