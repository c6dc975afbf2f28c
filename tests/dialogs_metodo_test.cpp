#include <sys/inotify.h>
#include <unistd.h>

#include "dialogs/frm_metodo.h"
#include "sostegno/cornice_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// Counts how often the report of the check was written.
class Spia {
 public:
  explicit Spia(const ProgrammaProva& p) { ::inotify_add_watch(fd_, p.radice.c_str(), IN_CLOSE_WRITE); }
  Spia(const Spia&) = delete;
  Spia& operator=(const Spia&) = delete;
  ~Spia() { ::close(fd_); }
  int verifiche() {
    alignas(inotify_event) std::array<char, 8192> eventi;
    int quante = 0;
    const auto letti = ::read(fd_, eventi.data(), eventi.size());
    for (ssize_t posto = 0; posto < letti;) {
      const auto* evento = reinterpret_cast<const inotify_event*>(&eventi[static_cast<std::size_t>(posto)]);
      quante += std::string(evento->name) == "Esiti.txt";
      posto += static_cast<ssize_t>(sizeof(inotify_event) + evento->len);
    }
    return quante;
  }

 private:
  const int fd_ = ::inotify_init1(IN_NONBLOCK);
};

TEST(Vaticla, RunsAsManyChecksForAnEventAsItIsTold) {
  ProgrammaProva p;
  CorniceProva cornice;
  Spia spia(p);
  frmMetodo vuoto(p.programma, cornice);
  vuoto.Form_Load();
  EXPECT_EQ(spia.verifiche(), 0) << "an empty archive";
  archivioDi(9).scrivi(p);
  frmMetodo frm(p.programma, cornice);
  const auto cerca = [&](const char* testo) {
    return [&, testo] {
      p.servizi.digitato = testo;
      frm.btnTrova_Click();
    };
  };
  const std::tuple<const char*, std::function<void()>, int> eventi[] = {
      {"opening", [&] { frm.Form_Load(); }, 1},
      {"the bar moves", [&] { frm.estrazione.VScroll1.Value(3); }, 1},
      {"the bar stays", [&] { frm.estrazione.VScroll1.Value(3); }, 0},
      {"value 2, then 1, the same draw",
       [&] { frm.estrazione.VScroll1.Value(2), frm.estrazione.VScroll1.Value(1); }, 2},
      {"Scegli, which changes the list", [&] { frm.optSelMetodo_Click(1); }, 2},
      {"a name typed", [&] { frm.metodo.cmbMetodo.digita("Altro"); }, 0},
      {"Scegli once more, which keeps the name", [&] { frm.optSelMetodo_Click(1); }, 1},
      {"an item of the list", [&] { frm.metodo.cmbMetodo.scegli(1); }, 1},
      {"Tutti", [&] { frm.optSelMetodo_Click(0); }, 1},
      {"a search by number", cerca("5"), 1},
      {"a search of the draw shown", cerca("5"), 0},
      {"a search by date, to the first of that day", cerca("12/3/2005"), 1},
      {"a search that is refused", cerca("x"), 0},
      {"printing", [&] { frm.btnStampa_Click(); }, 0},
      {"leaving", [&] { frm.btnAnnulla_Click(); }, 0}};
  for (const auto& [cosa, fai, attese] : eventi) {
    fai();
    EXPECT_EQ(spia.verifiche(), attese) << cosa;
    if (std::string(cosa).starts_with("Scegli once")) {
      EXPECT_EQ(frm.metodo.cmbMetodo.Text(), "Altro");
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
  const auto tono = [&] {
    std::string toni;
    for (const auto& rilievo : frm.RichTextBox1.Rilievi())
      toni += std::to_string(rilievo.riga) + "VAN"[static_cast<int>(rilievo.tono)] + ' ';
    return toni;
  };
  const std::string vuota = "Nessuna previsione su questa estrazione";
  // What is done; the draw shown, the note, the lines that stand out.
  const std::tuple<std::function<void()>, const char*, std::string, const char*> passi[] = {
      {[] {}, "150", vuota, ""},
      {[&] { frm.btnSeguente_Click(); }, "150", "Non ci sono previsioni dopo questa estrazione", ""},
      {[&] { frm.btnPrecedente_Click(); }, "148", "", "7A "},
      {[&] { frm.btnPrecedente_Click(); }, "102", "", "6V 14N "},
      {[&] { frm.btnPrecedente_Click(); }, "101", "", "6V "},
      {[&] { frm.btnPrecedente_Click(); }, "101", "Non ci sono previsioni prima di questa estrazione", "6V "},
      {[&] { frm.optSelMetodo_Click(1); }, "101", vuota, ""},  // Metodo 1
      {[&] { frm.btnSeguente_Click(); }, "102", "", "6V 14N "},
      {[&] { frm.optSelMetodo_Click(0), frm.estrazione.VScroll1.Value(104); }, "103",
       vuota + " · In verde i numeri vincenti", ""}};
  for (const auto& [fai, estrazione, nota, righe] : passi) {
    fai();
    EXPECT_EQ(frm.estrazione.lblnestr.Caption(), estrazione);
    EXPECT_EQ(frm.lblNota.Caption(), nota);
    EXPECT_EQ(tono(), righe) << estrazione;
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
