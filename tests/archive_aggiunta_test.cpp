#include "archive/aggiunta.h"
#include "archive/importazione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

// What fits and what is told of it stands in the scripts of the console.
TEST(Addition, NeedsAnArchiveWithALastDayAndAFreeSlot) {
  const auto testo = ArchivioProva(1).griglia;  // of 12/3/2005
  const auto errore = [&](const ArchivioProva& archivio) -> std::string {
    try {
      return std::to_string(preparaAggiunta(archivio.griglia, testo).nuove());
    } catch (const ErroreImportazione& rifiuto) {
      return rifiuto.what();
    }
  };
  EXPECT_EQ(errore(ArchivioProva(3).data(3, 5, 1, 1905)),
            "le date dell'archivio non sono in ordine: la n° 1 del 12/3/2005, viene prima dell'ultima, la "
            "n° 3 del 5/1/1905");
  EXPECT_EQ(errore(ArchivioProva(2).data(2, 62, 0, 2005)),
            "l'ultima estrazione dell'archivio, la n° 2 del 62/0/2005, non ha una data valida");
  ArchivioProva pieno(ArchivioEstrazioni::MaxEstrazioni - 1);
  EXPECT_EQ(errore(pieno), "0");
  for (int i = 1; i < ArchivioEstrazioni::MaxEstrazioni; ++i) pieno.data(i, 11, 3, 2005);
  EXPECT_THAT(errore(pieno), HasSubstr("non c'è posto"));
}

}  // namespace
}  // namespace vaticlo::prova
