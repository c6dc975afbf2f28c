#include "methods/cartella_metodi.h"
#include "operations/importa_estrazioni.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Importa : public testing::Test {
 protected:
  /// Imports a file of that content and gives what was said.
  std::vector<std::string> importa(const std::string& testo) {
    p.scrivi("estrazioni.txt", testo);
    p.servizi.scelto = p.radice / "estrazioni.txt";
    p.servizi.messaggi.clear();
    p.servizi.percenti.clear();
    importaEstrazioniDaFile(p.programma);
    return p.servizi.detti();
  }
  [[nodiscard]] std::string archivio() const { return p.contenuto("archivion71.dat"); }
  const std::string due = "1939/01/07\tBA\t58\t22\t47\t49\t69\n1939/01/14\tBA\t11\t12\t13\t14\t15\n";
  const std::string importate =
      "[Importa Estrazioni da File] Importate 2 estrazioni, dal 7/1/1939 al 14/1/1939";
  ProgrammaProva p;
};

TEST_F(Importa, FillsAnEmptyArchiveAndAsksBeforeItReplacesDraws) {
  EXPECT_THAT(importa(due), ElementsAre(importate));
  EXPECT_THAT(p.servizi.percenti, ElementsAre(50, 100));
  archivioDi(3).scrivi(p);
  const auto prima = archivio();
  p.servizi.risposta = Risposta::No;
  EXPECT_THAT(importa(due),
              ElementsAre(HasSubstr("Sostituirle tutte con quelle del file (2 estrazioni, dal ")));
  EXPECT_EQ(p.servizi.messaggi[0].predefinita, Risposta::No);
  EXPECT_TRUE(archivio() == prima);
  p.servizi.risposta = Risposta::Si;
  EXPECT_THAT(importa(due), ElementsAre(HasSubstr("Sostituirle"), importate));
  EXPECT_EQ(archivio().substr(0, 3), std::string("\x07\x0E\0", 3)) << "the days of the first draws";
  std::string lungo;  // as every real file is
  for (int n = 0; n < 4000; ++n)
    lungo += std::to_string(1900 + n / 480) + "/" + std::to_string(101 + n / 40 % 12).substr(1) + "/" +
             std::to_string(101 + n / 2 % 20).substr(1) + (n % 2 == 0 ? "\tBA" : "\tCA") +
             "\t10\t20\t30\t40\t50\n";
  EXPECT_THAT(importa(lungo), Contains(HasSubstr("Importate 2000 estrazioni")));
}

TEST_F(Importa, TellsWhatIsWrongWithAFileAndKeepsTheArchive) {
  archivioDi(3).scrivi(p);
  const auto prima = archivio();
  EXPECT_THAT(importa(due + "1939/01/21\tXX\t1\t2\t3\t4\t5\n"),
              ElementsAre(testing::ContainsRegex("\"estrazioni.txt\".*\n*.*riga 3: ruota sconosciuta")));
  EXPECT_EQ(p.servizi.percenti.back(), 100) << "the progress box goes away";
  EXPECT_THAT(importa(""), ElementsAre(HasSubstr("riga 1: il file è vuoto")));
  p.servizi.messaggi.clear();
  for (const auto& file : {cartellaMetodi(p.cartella()), p.radice / "manca.txt"}) {
    p.servizi.scelto = file;
    importaEstrazioniDaFile(p.programma);
  }
  EXPECT_THAT(p.servizi.detti(), ElementsAre(HasSubstr("\"Metodi\""), HasSubstr("\"manca.txt\"")));
  p.servizi.scelto.clear();
  importaEstrazioniDaFile(p.programma);
  EXPECT_EQ(p.servizi.messaggi.size(), 2U) << "a cancelled choice says nothing";
  EXPECT_TRUE(archivio() == prima);
}

}  // namespace
}  // namespace vaticlo::prova
