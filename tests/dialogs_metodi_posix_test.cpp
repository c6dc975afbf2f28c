#include "methods/cartella_metodi.h"
#include "operations/gestione_metodi.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

// Where upper and lower case make two files.
TEST(PosixMetodi, UpperAndLowerCaseAloneMayChange) {
  ProgrammaProva p;
  GestioneMetodi gestione{p.programma};
  p.scrivi("Metodi/mio.dat", "mio");
  EXPECT_TRUE(gestione.rinomina("mio", "MIO"));
  EXPECT_TRUE(p.servizi.messaggi.empty());
  p.scrivi("Metodi/Mio.dat", "altro");
  EXPECT_FALSE(gestione.rinomina("MIO", "Mio"));
  EXPECT_THAT(elencaFile(cartellaMetodi(p.cartella())), ElementsAre("MIO.dat", "Mio.dat"));
  EXPECT_EQ(p.contenuto("Metodi/MIO.dat") + p.contenuto("Metodi/Mio.dat"), "mioaltro");
}

}  // namespace
}  // namespace vaticlo::prova
