#include "operations/aggiornamento.h"
#include "operations/copie.h"
#include "operations/gestione_metodi.h"
#include "operations/importa_estrazioni.h"
#include "operations/previsioni_metodo.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Copie : public testing::Test {
 protected:
  Copie() {
    archivioDi(3).scrivi(p);
    scriviMetodoProva(p, "M", {{.estrazione = 2}, {.estrazione = 3}});
    scriviMetodoProva(p, "N", {});
  }
  /// The copies, each as "name: what it holds; ".
  [[nodiscard]] std::string elenco() const {
    std::string tutte;
    for (const auto& copia : elencoCopie(p.cartella())) tutte += copia.nome + ": " + contenuto(copia) + "; ";
    return tutte;
  }
  void domani() {
    p.servizi.giornoDiOggi = std::chrono::sys_days{p.servizi.giornoDiOggi} + std::chrono::days{1};
  }
  ProgrammaProva p;
};

void importa(ProgrammaProva& p) {
  p.scrivi("uno.txt", "2005/01/08\tBA\t1\t2\t3\t4\t5\n");
  p.servizi.scelto = p.radice / "uno.txt";
  importaEstrazioniDaFile(p.programma);
}

const std::string kArchivio = "archivio-2026-03-14: 3 estrazioni, l'ultima del 12/3/2005; ";
const std::string kMetodi = "metodi-2026-03-14: 2 metodi, 2 previsioni; ";

struct Cambio {
  const char* nome;
  std::function<void(ProgrammaProva&)> fai;
  std::string copie;
};

void PrintTo(const Cambio& caso, std::ostream* dove) { *dove << caso.nome; }

class CopieFatte : public Copie, public testing::WithParamInterface<Cambio> {};

TEST_P(CopieFatte, AreOfWhatIsTakenAwayOrWrittenOver) {
  GetParam().fai(p);
  EXPECT_EQ(elenco(), GetParam().copie);
}

const Cambio kCopieFatte[] = {
    {"update", [](auto& p) { aggiornaArchivio(p.programma, ""); }, kArchivio},
    {"import", importa, kArchivio},
    {"refused_import", [](auto& p) { p.servizi.risposta = Risposta::No, importa(p); }, ""},
    {"method_deleted", [](auto& p) { GestioneMetodi(p.programma).elimina("N"); }, kMetodi},
    {"method_renamed", [](auto& p) { GestioneMetodi(p.programma).rinomina("N", "O"); }, kMetodi},
    {"predictions", [](auto& p) { PrevisioniMetodo(p.programma).togli("M", {1}); }, kMetodi},
    {"method_that_is_not_there", [](auto& p) { GestioneMetodi(p.programma).elimina("Altro"); }, ""},
    {"new_method", [](auto& p) { GestioneMetodi(p.programma).crea("Altro"); }, ""}};

INSTANTIATE_TEST_SUITE_P(, CopieFatte, testing::ValuesIn(kCopieFatte), perNome);

TEST_F(Copie, AreOneADayAndTheLastTen) {
  for (int giorno = 1; giorno <= 12; ++giorno, domani())
    for (const int quante : {giorno, 100}) {
      archivioDi(quante).scrivi(p);
      faiCopia(p.programma, GenereCopia::Archivio);
    }
  const auto copie = elencoCopie(p.cartella());
  ASSERT_EQ(copie.size(), 10U);
  EXPECT_EQ(contenuto(copie.front()), "12 estrazioni, l'ultima del 12/3/2005");
  EXPECT_EQ(copie.back().nome, "archivio-2026-03-16");
  archivioDi(12).scrivi(p);
  faiCopia(p.programma, GenereCopia::Archivio);
  EXPECT_EQ(elencoCopie(p.cartella()).size(), 10U) << "the same once more is no copy";
}

TEST_F(Copie, BringBackWhatWasThereAndKeepWhatIs) {
  faiCopia(p.programma, GenereCopia::Archivio);
  faiCopia(p.programma, GenereCopia::Metodi);
  archivioDi(5).scrivi(p);
  GestioneMetodi(p.programma).crea("Nuovo");
  std::filesystem::remove(p.radice / "Metodi/N.dat");
  EXPECT_TRUE(ripristinaCopia(p.programma, "archivio-2026-03-14"));
  EXPECT_TRUE(ripristinaCopia(p.programma, "metodi-2026-03-14"));
  EXPECT_EQ(ApriArchivio(p.cartella()).PrimoIndiceLibero(), 4);
  EXPECT_THAT(elencaFile(p.radice / "Metodi"), ElementsAre("M.dat", "N.dat"));
  EXPECT_EQ(elenco(),
            "archivio-2026-03-14-2: 5 estrazioni, l'ultima del 12/3/2005; metodi-2026-03-14-2: 2 metodi, 2 "
            "previsioni; archivio-2026-03-14: 3 estrazioni, l'ultima del 12/3/2005; metodi-2026-03-14: 2 "
            "metodi, 2 previsioni; ");
  EXPECT_TRUE(ripristinaCopia(p.programma, "archivio-2026-03-14-2"));
  EXPECT_EQ(ApriArchivio(p.cartella()).PrimoIndiceLibero(), 6);
  EXPECT_EQ(elencoCopie(p.cartella()).size(), 4U) << "what was there is a copy already";
  for (const char* altra : {"archivio-2026-03-15", "../copie/archivio-2026-03-14", "", "archivio-2026-02-30"})
    EXPECT_FALSE(ripristinaCopia(p.programma, altra)) << altra;
}

TEST_F(Copie, TheOneToGoBackToIsKeptThoughItIsTheOldest) {
  for (int giorno = 1; giorno <= 10; ++giorno, domani()) {
    archivioDi(giorno).scrivi(p);
    faiCopia(p.programma, GenereCopia::Archivio);
  }
  archivioDi(50).scrivi(p);
  EXPECT_TRUE(ripristinaCopia(p.programma, "archivio-2026-03-14"));
  EXPECT_THAT(elenco(), AllOf(HasSubstr("archivio-2026-03-24: 50 "), HasSubstr("archivio-2026-03-14: 1 ")));
}

TEST_F(Copie, NothingIsBroughtBackWhenWhatIsThereCanNotBeKept) {
  faiCopia(p.programma, GenereCopia::Metodi);
  GestioneMetodi(p.programma).crea("Nuovo");
  p.scrivi("copie/metodi-2026-03-14-2", "a file where the folder is to be");
  EXPECT_FALSE(ripristinaCopia(p.programma, "metodi-2026-03-14"));
  EXPECT_THAT(p.servizi.detti(), ElementsAre(HasSubstr("Non è cambiato niente")));
  EXPECT_TRUE(p.esiste("Metodi/Nuovo.dat"));
}

TEST_F(Copie, AMethodThatCanNotBeWrittenBringsTheOthersBack) {
  scriviMetodoProva(p, "Z", {{.estrazione = 9}});
  faiCopia(p.programma, GenereCopia::Metodi);
  scriviMetodoProva(p, "M", {{.estrazione = 5}});
  std::filesystem::remove(p.radice / "Metodi/N.dat");
  std::filesystem::remove(p.radice / "Metodi/Z.dat");
  std::filesystem::create_directory(p.radice / "Metodi/Z.dat");
  const auto prima = p.contenuto("Metodi/M.dat");
  EXPECT_THROW(ripristinaCopia(p.programma, "metodi-2026-03-14"), RuntimeFailure);
  EXPECT_EQ(p.contenuto("Metodi/M.dat"), prima);
  EXPECT_FALSE(p.esiste("Metodi/N.dat"));
}

TEST_F(Copie, ThatCanNotBeMadeHinderNothing) {
  p.scrivi("copie", "a file where the folder is to be");
  EXPECT_TRUE(GestioneMetodi(p.programma).elimina("N"));
  EXPECT_THAT(p.servizi.segnalati, ElementsAre(HasSubstr("Non c'è una copia dei metodi di prima: ")));
  EXPECT_THAT(p.servizi.messaggi, IsEmpty());
  EXPECT_EQ(elenco(), "");
  std::filesystem::remove(p.radice / "copie");
  std::filesystem::remove(p.radice / "archivion71.dat");
  faiCopia(p.programma, GenereCopia::Archivio);
  EXPECT_FALSE(p.esiste("copie") || p.esiste("archivion71.dat")) << "nothing to keep";
}

}  // namespace
}  // namespace vaticlo::prova
