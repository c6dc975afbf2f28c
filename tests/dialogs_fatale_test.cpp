#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_principale.h"
#include "dialogs/messaggio_fatale.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// The box of the failure in which `fai` ends.
template <class Fai>
std::string box(Fai fai) {
  try {
    fai();
  } catch (const RuntimeFailure& failure) {
    return messaggioFatale(failure);
  }
  return "no failure";
}

TEST(MessaggioFatale, SaysWhatHappenedWhereWhatToDoAndWhichChapterOfTheGuideHelps) {
  ProgrammaProva p;
  p.servizi.digitato = "40000";
  archivioDi(150).scrivi(p);
  frmPrincipale principale(p.programma);
  const SlotProva normale = {.estrazione = 101, .ruote = {1}, .colpi = 90, .ambate = {7}};
  const auto scansione = [&](const std::vector<SlotProva>& slot) {
    scriviMetodoProva(p, "Mio", slot);
    principale.comando("mnuUtility1");
  };
  const std::string nove = "Errore di run-time 9: ", inGioco = "\"Previsioni in Gioco\"";
  // What is done; the number, what the box names, the heading of the guide.
  const std::tuple<const char*, std::function<void()>, std::string, std::vector<std::string>, std::string>
      casi[] = {{"ten predictions",
                 [&] { scansione(std::vector(10, normale)); },
                 nove,
                 {"\"Mio\"", "dieci", inGioco},
                 "La decima previsione di un metodo"},
                {"ten predictions in the editor",
                 [&] {
                   principale.comando("mnuGestione22");
                   principale.aperta<frmInsPrev>()->cmbMetodo.scegli(2);
                 },
                 nove,
                 {"\"Mio\"", "dieci"},
                 "La decima previsione di un metodo"},
                {"only Tutte",
                 [&] {
                   scansione({normale, {.estrazione = 101, .ruote = {12}, .colpi = 90, .ambi = {1, 2, 99}}});
                 },
                 nove,
                 {"n. 2 del metodo \"Mio\"", "Ba-Tutte", inGioco},
                 "Tutte da sola"},
                {"a list without an end",
                 [&] {
                   scansione({{.estrazione = 101, .ruote = {1}, .colpi = 90, .ambate = std::vector(180, 7)}});
                 },
                 nove,
                 {"n. 1 del metodo \"Mio\"", "liste", inGioco},
                 "Creare una previsione"},
                {"a stranger among the methods",
                 [&] {
                   p.scrivi("Metodi/nota.txt", "");
                   principale.comando("mnuUtility1");
                 },
                 "Errore di run-time 5: ",
                 {"nota.txt", inGioco},
                 "Se il programma si chiude con un errore"},
                {"an empty field",
                 [&] {
                   principale.comando("mnu1Inserisci");
                   auto& frm = *principale.aperta<frmInserisci>();
                   for (auto& campo : frm.txtestr) campo.Text("7");
                   frm.txtestr[6].Text("  ");
                   frm.btnSalva_Click();
                 },
                 "Errore di run-time 13: ",
                 {"Il numero 2 di Cagliari", "55"},
                 "Inserire un'estrazione"},
                {"a search beyond all numbers",
                 [&] {
                   principale.comando("mnu1Modifica");
                   principale.aperta<frmModifica>()->btnTrova_Click();
                 },
                 "Errore di run-time 6: ",
                 {"40000"},
                 "La ricerca di un'estrazione"},
                {"a full archive",
                 [&] {
                   archivioDi(15000).scrivi(p);
                   principale.comando("mnuMetodi");
                 },
                 nove,
                 {"15.000", "\"Vaticla\""},
                 "Il resto"},
                {"nobody knows better",
                 [] { throw RuntimeFailure(Errore::DiscoPieno, "Stat.txt"); },
                 "Errore di run-time 61: ",
                 {"Stat.txt", "posto"},
                 "Se il programma si chiude con un errore"}};
  std::ifstream file(VATICLO_GUIDA_MD);
  const std::string guida{std::istreambuf_iterator<char>(file), {}};
  for (const auto& [cosa, fai, numero, nomi, capitolo] : casi) {
    const auto testo = box(fai);
    EXPECT_THAT(testo, HasSubstr(numero)) << cosa;
    EXPECT_THAT(testo, HasSubstr("restano com'erano all'ultimo salvataggio")) << cosa;
    EXPECT_THAT(testo, HasSubstr("«" + capitolo + "»")) << cosa;
    EXPECT_THAT(guida, HasSubstr("# " + capitolo + "\n")) << cosa;
    for (const auto& nome : nomi) EXPECT_THAT(testo, HasSubstr(nome)) << cosa;
  }
}

}  // namespace
}  // namespace vaticlo::prova
