#include "check/previsioni_per_estrazione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(PrevisioniPerEstrazione, TellWhoHasWonWithEachNumberOfADraw) {
  const ProgrammaProva p;
  const auto archivio = archivioDi(110, "103 Ba 5 6,103 Ca 9 6 5");
  scriviMetodoProva(p, "A", {{.estrazione = 101, .ruote = {2}, .colpi = 2, .sup = {6, 1, 9, 5, 99}}});
  scriviMetodoProva(p, "B", {{.estrazione = 102, .ruote = {12, 1}, .colpi = 1, .ambi = {5, 6, 99}}});
  const PrevisioniPerEstrazione previsioni(p.cartella(), {});
  std::vector<std::string> detti;
  for (const auto& vincente : previsioni.vincentiIn(archivio.griglia, 103))
    detti.push_back(std::to_string(vincente.ruota) + ": " + std::to_string(vincente.numero) + " " +
                    vincente.vincita);
  const std::string terno = " Terno in sorti superiori 6 9 5 Ca al 2° colpo (A, estrazione 101)";
  const std::string ambo = " Ambo 5-6 Ba al 1°colpo (B, estrazione 102)";
  const auto tutte = [](const std::string& sigla) {
    return " Ambo 5-6 su Tutte (" + sigla + ") al 1°colpo (B, estrazione 102)";
  };
  EXPECT_THAT(detti, ElementsAre("2: 6" + terno, "2: 9" + terno, "2: 5" + terno, "1: 5" + ambo, "1: 6" + ambo,
                                 "1: 5" + tutte("Ba"), "1: 6" + tutte("Ba"), "2: 5" + tutte("Ca"),
                                 "2: 6" + tutte("Ca")));
  EXPECT_THAT(previsioni.vincentiIn(archivio.griglia, 104), IsEmpty()) << "after their colpi";
}

}  // namespace
}  // namespace vaticlo::prova
