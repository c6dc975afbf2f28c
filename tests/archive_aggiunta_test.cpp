#include "archive/aggiunta.h"
#include "archive/importazione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// Draws of 2005 as "5/1 12 34, 8/1 56": day and month, the first numbers of Bari. An "!" makes the
/// century 19.
ArchivioProva estrazioni(const std::string& testo) {
  ArchivioProva archivio(0);
  std::istringstream resto(testo);
  int i = 0;
  for (std::string una; std::getline(resto, una, ',');) {
    std::istringstream parole(una);
    int giorno = 0, mese = 0, numero = 0;
    char barra = 0;
    parole >> giorno >> barra >> mese;
    std::vector<int> numeri;
    while (parole >> numero) numeri.push_back(numero);
    ++i;
    archivio.data(i, giorno, mese, una.ends_with('!') ? 1905 : 2005).ruota(i, 1, numeri);
  }
  return archivio;
}

/// What the addition tells, as "3 in comune; 4:12/1=14 | ...": how many draws are compared, of each that is
/// added number, day and first number of Bari, then differences and warnings.
std::string esito(const std::string& archivio, const std::string& testo) {
  const auto prima = estrazioni(archivio);
  try {
    const auto aggiunta = preparaAggiunta(prima.griglia, estrazioni(testo).griglia);
    std::string tutto = std::to_string(aggiunta.confrontate) + " in comune; ";
    for (int i = aggiunta.dal; i <= aggiunta.al; ++i)
      tutto += std::to_string(i) + ":" + aggiunta.archivio.DataEstrazione(i).substr(0, 4) + "=" +
               std::to_string(aggiunta.archivio(i, 1, 1)) + " ";
    for (const auto& una : aggiunta.differenze) tutto += "| " + inParole(una);
    for (const auto& frase : aggiunta.avvertenze) tutto += "| " + frase;
    for (int i = 1; i < prima.griglia.PrimoIndiceLibero(); ++i)
      EXPECT_EQ(aggiunta.archivio(i, 1, 1), prima.griglia(i, 1, 1)) << "what was there stays";
    EXPECT_EQ(aggiunta.archivio.PrimoIndiceLibero(), aggiunta.al + 1);
    return tutto;
  } catch (const ErroreImportazione& errore) {
    return errore.what();
  }
}

struct Caso {
  const char* nome;
  std::string archivio, testo, atteso;  ///< what stands there, what is added, what esito() tells
};

void PrintTo(const Caso& caso, std::ostream* dove) { *dove << caso.nome; }

class Addition : public testing::TestWithParam<Caso> {};

TEST_P(Addition, TakesTheDrawsAfterTheLastOneAndTellsWhatDoesNotFit) {
  EXPECT_EQ(esito(GetParam().archivio, GetParam().testo), GetParam().atteso);
}

const std::string kTre = "1/1 11,5/1 12,8/1 13";

const Caso kAddition[] = {
    {"into_nothing", "", kTre, "0 in comune; 1:1/1/=11 2:5/1/=12 3:8/1/=13 "},
    {"new_ones", kTre, kTre + ",12/1 14,15/1 15", "3 in comune; 4:12/1=14 5:15/1=15 "},
    {"none", kTre, kTre, "3 in comune; "},
    {"a_difference", kTre, "1/1 11,5/1 7,8/1,12/1 1",
     "3 in comune; 4:12/1=1 | 5/1/2005 Ba: archivio 12 0 0 0 0, testo 7 0 0 0 0"
     "| 8/1/2005 Ba: archivio 13 0 0 0 0, testo nessun numero"},
    {"ends_before", kTre, "1/1 11,5/1 12",
     "2 in comune; | Il testo finisce il 5/1/2005, prima dell'ultima estrazione dell'archivio, la n° 3 del "
     "8/1/2005."},
    {"begins_later", kTre, "5/1 12,8/1 13,12/1 14",
     "2 in comune; 4:12/1=14 | Il testo comincia il 5/1/2005: le estrazioni precedenti dell'archivio non "
     "sono confrontate."},
    {"begins_after_the_end", kTre, "30/1 14",
     "0 in comune; 4:30/1=14 | Il testo comincia il 30/1/2005, dopo l'ultima estrazione dell'archivio, la n° "
     "3 del 8/1/2005: non si può confrontare, e le estrazioni di mezzo, se ce ne sono, mancheranno. Cercate "
     "un testo che cominci prima."},
    {"a_hole_in_the_text", kTre, "1/1 11,8/1 13",
     "2 in comune; | Estrazioni dell'archivio che il testo non ha: 1 (la n° 2 del 5/1/2005)."},
    {"a_hole_in_the_archive", "1/1 11,8/1 13", kTre,
     "2 in comune; | Estrazioni del testo che l'archivio non ha: 1, la prima del 5/1/2005; non vengono "
     "aggiunte, perché le altre cambierebbero numero."},
    {"a_hole_in_what_is_new", kTre, "8/1 13,23/1 14",
     "1 in comune; 4:23/1=14 | Tra l'estrazione n° 3 e la n° 4 passano più di due settimane: dal 8/1/2005 al "
     "23/1/2005.| Il testo comincia il 8/1/2005: le estrazioni precedenti dell'archivio non sono "
     "confrontate."},
    {"the_last_one_is_of_the_wrong_year", "1/1 11,8/1 13,5/1!", kTre,
     "le date dell'archivio non sono in ordine: la n° 1 del 1/1/2005, viene prima dell'ultima, la n° 3 del "
     "5/1/1905"},
    {"the_last_one_has_no_date", "1/1 11,62/0", kTre,
     "l'ultima estrazione dell'archivio, la n° 2 del 62/0/2005, non ha una data valida"}};

INSTANTIATE_TEST_SUITE_P(, Addition, testing::ValuesIn(kAddition), perNome);

TEST(FullArchive, LeavesAFreeSlotBehindTheLastDraw) {
  const auto pieno = ArchivioProva(ArchivioEstrazioni::MaxEstrazioni - 1);
  EXPECT_EQ(preparaAggiunta(pieno.griglia, estrazioni("5/1 1").griglia).nuove(), 0);
  EXPECT_THROW(static_cast<void>(preparaAggiunta(pieno.griglia, estrazioni("13/3 1").griglia)),
               ErroreImportazione);
}

}  // namespace
}  // namespace vaticlo::prova
