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

}  // namespace
}  // namespace vaticlo::prova
