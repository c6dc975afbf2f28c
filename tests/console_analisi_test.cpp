#include "sostegno/console_prova.h"

namespace vaticlo::prova {
namespace {

/// Draws 1 to 110 with Bari alone; "A" holds a winner on 101 and a loser on 105, "B" one that can't be
/// judged.
class Analisi : public Console {
 protected:
  Analisi() {
    ArchivioProva archivio(110);
    for (int d = 1; d <= 110; ++d) archivio.ruota(d, 1, {90, 89, 88, 87, d == 103 ? 7 : 86});
    archivio.scrivi(p);
    const auto ambata = [](int estrazione) {
      return SlotProva{.estrazione = estrazione, .ruote = {1}, .colpi = 2, .ambate = {7}};
    };
    scriviMetodoProva(p, "A", {ambata(101), ambata(105)});
    scriviMetodoProva(p, "B;1", {ambata(106), {.estrazione = 101, .ruote = {12}, .ambi = {5, 6, 99}}});
  }
};

TEST_F(Analisi, TheQuadroGoesToTheScreenAFileOrAnotherProgram) {
  EXPECT_EQ(esegui("quadro"), 0);
  EXPECT_EQ(
      detto,
      "Metodo  Previsioni  Giocate  Vincenti  Negative  In gioco  Vincenti %  Attese %  Colpo medio  Stato\n"
      "A                2        2         1         1         0          50      10,8            2\n"
      "B;1              2        2         0         2         0           0      10,8\n");
  const std::string colonne =
      "Metodo;Previsioni;Giocate;Vincenti;Negative;In gioco;Vincenti %;Attese %;Colpo medio;Stato\r\n";
  EXPECT_EQ(esegui("quadro --al 105 --csv -"), 0);
  EXPECT_EQ(detto, colonne + "A;2;2;1;1;0;50;10,8;2;\r\n\"B;1\";2;1;0;1;0;0;;;\r\n");
  EXPECT_EQ(esegui("quadro --dal 102 --metodo A --csv @/q.csv --json"), 0);
  EXPECT_EQ(p.contenuto("q.csv"), colonne + "A;2;1;0;1;0;0;10,8;;\r\n");
  EXPECT_EQ(detto,
            "[\n  {\n    \"Metodo\": \"A\",\n    \"Previsioni\": 2,\n    \"Giocate\": 1,\n"
            "    \"Vincenti\": 0,\n    \"Negative\": 1,\n    \"In gioco\": 0,\n    \"Vincenti %\": 0.0,\n"
            "    \"Attese %\": 10.8,\n    \"Colpo medio\": null,\n    \"Stato\": \"\"\n  }\n]\n");
  EXPECT_EQ(esegui("quadro --metodo Mai"), 3);
  EXPECT_FALSE(p.esiste("Metodi/Mai.dat"));
  EXPECT_EQ(esegui("quadro --json --csv -"), 2);
}

TEST_F(Analisi, TheComparisonWithChanceHasSixLinesForEachMethod) {
  EXPECT_EQ(esegui("caso 1 110 --prove 50 --seme 3"), 0);
  const auto prima = detto;
  EXPECT_THAT(detto, StartsWith("Metodo: A\nPrevisioni concluse: 2\nVincenti: 1 (50%)\n"
                                "Attese dal caso: 0,22 (10,8%)\nProve con almeno 1 vincenti: "));
  EXPECT_THAT(detto, HasSubstr("Metodo: B;1\nPrevisioni concluse: 1\nVincenti: 0 (0%)\n"
                               "Attese dal caso: 0,11 (10,8%)\nProve con almeno 0 vincenti: 50 su 50\n"
                               "Probabilità di fare almeno così per caso: 100%\nNon giudicabili: 1\n\n"));
  EXPECT_THAT(detto, HasSubstr("Metodo: Tutti\nPrevisioni concluse: 3\nVincenti: 1 (33,3%)\n"));
  EXPECT_EQ(esegui("caso 1 110 --prove 50 --seme 3"), 0);
  EXPECT_EQ(detto, prima);
  EXPECT_EQ(esegui("caso 107 110"), 0);
  EXPECT_EQ(detto, "");
  EXPECT_THAT(errori, HasSubstr("Nessuna previsione conclusa"));
  for (const char* sbagliato : {"caso 5 4", "caso 1 2 --prove 0", "caso 1 2 --seme -1", "caso 1 x"})
    EXPECT_EQ(esegui(sbagliato), 2) << sbagliato;
}

TEST_F(Analisi, DelaysComeLongestFirst) {
  EXPECT_EQ(esegui("ritardi ba --dal 101 --csv -"), 0);
  EXPECT_THAT(detto, StartsWith("Numero;Frequenza;Ritardo;Ritardo massimo\r\n1;0;10;10\r\n2;0;10;10\r\n"));
  EXPECT_THAT(detto, HasSubstr("\r\n85;0;10;10\r\n7;1;7;7\r\n86;9;0;1\r\n"));
  EXPECT_EQ(esegui("ritardi Tutte --ambi --csv -"), 0);
  EXPECT_THAT(detto, StartsWith("Ambo;Frequenza;Ritardo;Ritardo massimo\r\n1-2;0;110;110\r\n"));
  EXPECT_THAT(detto, EndsWith("89-90;110;0;0\r\n"));
  EXPECT_EQ(esegui("ritardi Bari"), 2);
  EXPECT_THAT(errori, HasSubstr("Ba Ca Fi"));
}

TEST_F(Analisi, PredictionsGoWhereTheyAreSent) {
  EXPECT_EQ(eseguiFile("previsione sposta A 1 'B;1'\nprevisione togli 'B;1' 2\nprevisione duplica A 1\n"
                       "previsione copia A 1 'B;1'\n"),
            0);
  EXPECT_EQ(detto,
            "Spostata la previsione n.1 dal metodo A al metodo B;1\n"
            "Tolta la previsione n.2 dal metodo B;1\nDuplicata la previsione n.1 del metodo A\n"
            "Copiata la previsione n.1 del metodo A nel metodo B;1\n");
  EXPECT_EQ(ContaPrevisioni(LeggiMetodo(p.cartella(), "A")), 2);
  EXPECT_EQ(ContaPrevisioni(LeggiMetodo(p.cartella(), "B;1")), 3);
  EXPECT_EQ(esegui("previsione togli A 3"), 3);
  EXPECT_EQ(detto, "[Attenzione] Il metodo \"A\" non ha la previsione n.3!\n");
}

}  // namespace
}  // namespace vaticlo::prova
