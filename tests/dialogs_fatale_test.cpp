#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_principale.h"
#include "dialogs/messaggio_fatale.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

const SlotProva kNormale = {.estrazione = 101, .ruote = {1}, .colpi = 90, .ambate = {7}};

/// A program, and what ends it.
struct Fine {
  Fine() { archivioDi(150).scrivi(p); }
  void scansione(const std::vector<SlotProva>& slot) {
    scriviMetodoProva(p, "Mio", slot);
    principale.comando("mnuUtility1");
  }
  void dieci() { scansione(std::vector(10, kNormale)); }
  void soloTutte() { scansione({kNormale, {101, {}, {12}, 90, {}, {1, 2, 99}}}); }
  void senzaFine() { scansione({{101, {}, {1}, 90, std::vector(180, 7)}}); }
  void estraneo() {
    p.scrivi("Metodi/nota.txt", "");
    scansione({});
  }
  void dieciNellEditor() {
    scriviMetodoProva(p, "Mio", std::vector(10, kNormale));
    principale.comando("mnuGestione22");
    principale.aperta<frmInsPrev>()->cmbMetodo.scegli(2);
  }
  void campoVuoto() {
    principale.comando("mnu1Inserisci");
    auto& frm = *principale.aperta<frmInserisci>();
    for (auto& campo : frm.txtestr) campo.Text("7");
    frm.txtestr[6].Text("  ");
    frm.btnSalva_Click();
  }
  void ricerca() {
    p.servizi.digitato = "40000";
    principale.comando("mnu1Modifica");
    principale.aperta<frmModifica>()->btnTrova_Click();
  }
  void archivioPieno() {
    archivioDi(15000).scrivi(p);
    principale.comando("mnuMetodi");
  }
  void disco() { throw RuntimeFailure(Errore::DiscoPieno, "Stat.txt"); }
  ProgrammaProva p;
  frmPrincipale principale{p.programma};
};

/// What ends the program, and what the box says of it.
struct Caso {
  const char* nome;
  void (Fine::*fai)();
  int numero;
  std::vector<std::string> nominati;
  std::string capitolo;  ///< the heading of the guide
};

void PrintTo(const Caso& caso, std::ostream* dove) { *dove << caso.nome; }

class MessaggioFatale : public testing::TestWithParam<Caso> {};

TEST_P(MessaggioFatale, SaysWhatHappenedWhereWhatToDoAndWhichChapterOfTheGuideHelps) {
  const auto& caso = GetParam();
  Fine fine;
  std::string box;
  try {
    (fine.*caso.fai)();
  } catch (const RuntimeFailure& failure) {
    box = messaggioFatale(failure);
  }
  EXPECT_THAT(box, HasSubstr("Errore di run-time " + std::to_string(caso.numero) + ": "));
  EXPECT_THAT(box, HasSubstr("restano com'erano all'ultimo salvataggio"));
  EXPECT_THAT(box, HasSubstr("«" + caso.capitolo + "»"));
  for (const auto& nome : caso.nominati) EXPECT_THAT(box, HasSubstr(nome));
  std::ifstream guida(VATICLO_GUIDA_MD);
  EXPECT_THAT(std::string({std::istreambuf_iterator<char>(guida), {}}),
              HasSubstr("# " + caso.capitolo + "\n"));
}

const std::string kInGioco = "\"Previsioni in Gioco\"", kDecima = "La decima previsione di un metodo";
const std::string kErrore = "Se il programma si chiude con un errore";

const Caso kMessaggioFatale[] = {
    {"ten_predictions", &Fine::dieci, 9, {"\"Mio\"", "dieci", kInGioco}, kDecima},
    {"ten_predictions_in_the_editor", &Fine::dieciNellEditor, 9, {"\"Mio\"", "dieci"}, kDecima},
    {"tutte_alone", &Fine::soloTutte, 9, {"n. 2 del metodo \"Mio\"", "Ba-Tutte"}, "Tutte da sola"},
    {"endless_list", &Fine::senzaFine, 9, {"n. 1 del metodo \"Mio\"", "liste"}, "Creare una previsione"},
    {"a_file_that_is_no_method", &Fine::estraneo, 5, {"nota.txt", kInGioco}, kErrore},
    {"an_empty_field", &Fine::campoVuoto, 13, {"Il numero 2 di Cagliari", "55"}, "Inserire un'estrazione"},
    {"a_number_that_is_too_large", &Fine::ricerca, 6, {"40000"}, "La ricerca di un'estrazione"},
    {"a_full_archive", &Fine::archivioPieno, 9, {"15.000", "\"Vaticla\""}, "Il resto"},
    {"a_full_disk", &Fine::disco, 61, {"Stat.txt", "posto"}, kErrore}};

INSTANTIATE_TEST_SUITE_P(Of, MessaggioFatale, testing::ValuesIn(kMessaggioFatale), perNome);

}  // namespace
}  // namespace vaticlo::prova
