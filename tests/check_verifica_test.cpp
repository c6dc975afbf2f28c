#include "check/clsmetodo.h"
#include "check/numeri.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Verifica : public testing::Test {
 protected:
  /// The report of the check of draw 101.
  std::string verifica(const std::string& lblnestr = "101") {
    p.globals().mostra(101);
    clsMetodo controllo(p.programma, {{}, lblnestr});
    controllo.ricerca(0);
    controllo.rilascia();
    return p.contenuto("Esiti.txt");
  }
  ProgrammaProva p;
};

TEST_F(Verifica, AFailureEndsTheRunSilentlyAndLeavesWhatWasWritten) {
  const SlotProva ambata = {.estrazione = 101, .ruote = {1}, .colpi = 3, .ambate = {7}};
  const auto prima =
      " Previsione n.°1| Metodo: A| Ruote: Ba| Ambate: 7|| Esito:| Negativo|" + std::string(35, '_');
  const struct {
    const char* nome;
    std::vector<SlotProva> slot;  // of B
    std::string scritto;          // of them
  } casi[] = {{"ten predictions", std::vector(10, ambata), ""},
              {"a list without an end", {{101, {}, {1}, 3, std::vector<int>(180, 7)}}, ""},
              {"Tutte alone",
               {{101, {}, {12}, 3, {}, {5, 6, 99}}},
               "| Previsione n.°2| Metodo: B| Ruote: Tutte| Ambi Secchi: 5-6|| Esito:"}};
  for (const char* nome : {"A", "C"}) scriviMetodoProva(p, nome, {ambata});
  archivioDi(105).scrivi(p);
  p.globals().apriSullUltima(106);
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.nome);
    scriviMetodoProva(p, "B", caso.slot);
    EXPECT_EQ(verifica(), rapportoDi(prima + caso.scritto));
    EXPECT_EQ(p.globals().ContaGiocabili, caso.scritto.empty() ? 1 : 2);
    EXPECT_EQ(p.globals().ContaVincenti + p.globals().ContaInGioco, 0);
  }
  EXPECT_EQ(verifica("101a"), "") << "a number that is none";
  p.scrivi("Metodi/Z.txt", "");
  EXPECT_EQ(verifica(), "") << "a file that is no method";
}

TEST(Numeri, EachRelationIsTheOneThatPlayersKnow) {
  const struct {
    const char* nome;
    int (*relazione)(int);
    std::map<int, int> valori;
  } casi[] = {{"vertibile",
               vert,
               {{12, 21}, {11, 19}, {19, 11}, {9, 90}, {90, 9}, {5, 50}, {50, 5}, {88, 89}, {89, 88}}},
              {"diametrale", Diametrale, {{1, 46}, {45, 90}, {46, 1}, {90, 45}}},
              {"somma 30", Somma30, {{1, 31}, {60, 90}, {61, 1}, {90, 30}}},
              {"figura", Figura, {{9, 9}, {10, 1}, {45, 9}, {46, 1}, {89, 8}, {90, 9}}},
              {"decina", Decina, {{9, 0}, {10, 1}, {90, 9}}},
              {"cadenza", Cadenza, {{9, 9}, {10, 0}, {47, 7}, {90, 0}}},
              {"mezzadecina",
               Mezzadecina,
               {{90, 5}, {5, 90}, {1, 6}, {6, 1}, {10, 15}, {15, 10}, {84, 89}, {80, 85}}},
              {"distanza", [](int n) { return DistanzaCiclica(n, 10); }, {{55, 45}, {56, 44}, {1, 9}}},
              {"differenza", [](int n) { return DifferenzaCiclica(n, 10); }, {{15, 5}, {5, 85}, {10, 90}}},
              {"minimo", [](int n) { return MinimoCinque(5, n, 4, 7, 6); }, {{3, 3}, {9, 4}}},
              {"massimo", [](int n) { return MassimoTre(5, 4, n); }, {{3, 5}, {9, 9}}}};
  for (const auto& caso : casi)
    for (const auto& [n, atteso] : caso.valori) EXPECT_EQ(caso.relazione(n), atteso) << caso.nome << ' ' << n;
}

TEST(Valutatori, LookAtTheWheelsUpToVenezia) {
  ProgrammaProva p;
  archivioDi(2, "1 Ba 1 2,1 Ca 3 2 1,1 Ve 4 3 2 1,1 Naz 1 2 3,1 To 1,2 Ba 5 4 3 2 1,2 Ve 1 90 45 46 10")
      .scrivi(p);
  clsMetodo controllo(p.programma, {});
  const std::array<int, 5> numeri = {1, 2, 3, 4, 5};
  for (const int ruota : {1, 2, 9, 10, 11})
    EXPECT_EQ(controllo.ControllaCinquina(numeri, ruota, 1), ruota != 9 && ruota != 11) << ruota;
  EXPECT_TRUE(controllo.ControllaCinquina(numeri, 1, 2));
  controllo.Terzine = {{7, 8, 9}, {1, 2, 3}};
  for (const int ruota : {1, 2}) EXPECT_TRUE(controllo.ControllaTerzina(ruota, 2, 1));
  EXPECT_FALSE(controllo.ControllaTerzina(1, 1, 1));
  EXPECT_EQ(failureDi([&] { return controllo.ControllaTerzina(1, 3, 1); }), 9);
  controllo.rilascia();
  EXPECT_EQ(
      p.contenuto("Esiti.txt"),
      rapportoDi(" Ambo in cinquina 1 2 Ba al 0° colpo| Terno in cinquina 1 2 3 Ca al 0° colpo|"
                 " Quaterna in cinquina 1 2 3 4 Ve al 0° colpo| Cinquina secca  1 2 3 4 5 Ba al 0° colpo|"
                 " Ambo in terzina 1 2 Ba al 0° colpo| Terno secco a tutte  1 2 3 Ca al 0° colpo|"
                 " Terno secco a tutte  1 2 3 Ve al 0° colpo| Terno secco 1 2 3 Ca al 0° colpo|"
                 " Terno secco a tutte  1 2 3 Ve al 0° colpo"));
  const auto venezia = [&] {
    std::vector<int> valori;
    for (const auto& coppia : controllo.posizioni()) valori.push_back(coppia[9]);
    return valori;
  };
  controllo.DistanzePosizioni(2);
  EXPECT_THAT(venezia(), ElementsAre(1, 45, 1, 36, 9, 0, 0, 0, 0, 0));
  controllo.DifferenzePosizioni(2);
  EXPECT_THAT(venezia(), ElementsAre(89, 45, 1, 36, 9, 44, 45, 44, 80, 35));
}

}  // namespace
}  // namespace vaticlo::prova
