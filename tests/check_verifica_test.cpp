#include "check/clsmetodo.h"
#include "check/numeri.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Verifica : public testing::Test {
 protected:
  void archivio(int ultima, const std::string& uscite = "") {
    archivioDi(ultima, uscite).scrivi(p);
    p.globals().apriSullUltima(ultima + 1);
  }
  /// The report of the check of a draw.
  std::string verifica(int estrazione, const std::string& lblnestr) {
    p.globals().mostra(estrazione);
    clsMetodo controllo(p.programma, {{}, lblnestr});
    controllo.ricerca(0);
    controllo.rilascia();
    return p.contenuto("Esiti.txt");
  }
  void attende(int giocabili, int vincenti, int inGioco) {
    EXPECT_EQ(p.globals().ContaGiocabili, giocabili);
    EXPECT_EQ(p.globals().ContaVincenti, vincenti);
    EXPECT_EQ(p.globals().ContaInGioco, inGioco);
  }
  ProgrammaProva p;
};

const std::string kFine = "|" + std::string(35, '_');

/// A prediction calculated on draw 101.
SlotProva gioca(std::vector<int> ruote, std::vector<int> ambate, std::vector<int> ambi = {},
                std::vector<int> sup = {}, int colpi = 3) {
  return {101, {}, std::move(ruote), colpi, std::move(ambate), std::move(ambi), std::move(sup)};
}

const SlotProva kAmbata = gioca({1}, {7}), kSenzaColpi = gioca({1}, {7}, {}, {}, 0);
const SlotProva kTutte = gioca({12, 1, 2}, {}, {5, 6, 99});
const SlotProva kMolte = gioca({1, 2}, {12}, {12, 34, 99}, {1, 2, 3, 99});
const SlotProva kSorte = gioca({1}, {}, {}, {9, 3, 1, 2, 4, 99});

struct Giocata {
  const char* nome;
  SlotProva slot;
  int ultima;          ///< the last draw
  std::string uscite;  ///< as archivioDi() takes them
  std::string esito;
};

void PrintTo(const Giocata& caso, std::ostream* dove) { *dove << caso.nome; }

class Giocate : public Verifica, public testing::WithParamInterface<Giocata> {};

TEST_P(Giocate, ArePlayedAtEveryColpoAndEachHitWritesItsLine) {
  const auto& caso = GetParam();
  archivio(caso.ultima, caso.uscite);
  scriviMetodoProva(p, "M", {caso.slot});
  EXPECT_THAT(verifica(101, "101"), EndsWith(rapportoDi("| Esito:|" + caso.esito + kFine)));
  attende(1, caso.esito.find(" al ") != std::string::npos, caso.esito == " In gioco");
}

const Giocata kGiocate[] = {
    {"last_colpo_is_the_last_draw", kAmbata, 104, "", " In gioco"},
    {"lost", kAmbata, 105, "", " Negativo"},
    {"nothing_is_judged_after_the_last_draw", kAmbata, 103, "104 Ba 7", " In gioco"},
    {"no_colpo_on_the_last_draw", kSenzaColpi, 101, "", " In gioco"},
    {"no_colpo", kSenzaColpi, 102, "102 Ba 7", " Negativo"},
    {"before_and_after_its_colpi", kAmbata, 105, "101 Ba 7,105 Ba 7", " Negativo"},
    {"two_colpi", kAmbata, 103, "102 Ba 9 7,103 Ba 7", " Ambata 7 Ba al 1°colpo| Ambata 7 Ba al 2°colpo"},
    {"all_kinds", kMolte, 104, "102 Ba 12,102 Ro 12 34,103 Ca 2 34 12,104 Ba 1 2 3",
     " Ambata 12 Ba al 1°colpo| Ambata 12 Ca al 2°colpo| Ambo 12-34 Ca al 2°colpo|"
     " Terno in sorti superiori 1 2 3 Ba al 3° colpo"},
    {"a_wheel_twice", gioca({2, 2}, {7}), 102, "102 Ca 7", " Ambata 7 Ca al 1°colpo| Ambata 7 Ca al 1°colpo"},
    {"tutte_goes_along_with_the_first_wheel", kTutte, 102, "102 Ba 5 6,102 Ca 6 5,102 Naz 5 6",
     " Ambo 5-6 Ba al 1°colpo| Ambo 5-6 su Tutte (Ba) al 1°colpo| Ambo 5-6 su Tutte (Ca) al 1°colpo|"
     " Ambo 5-6 su Tutte (Naz) al 1°colpo| Ambo 5-6 Ca al 1°colpo"},
    {"a_combination_from_two_to_five", kSorte, 104, "102 Ba 1 3,103 Ba 1 2 3 4,104 Ba 1 2 3 4 9",
     " Ambo in sorti superiori 3 1 Ba al 1° colpo| Quaterna in sorti superiori 3 1 2 4 Ba al 2° colpo|"
     " Cinquina in sorti superiori 9 3 1 2 4 Ba al 3° colpo"}};

INSTANTIATE_TEST_SUITE_P(, Giocate, testing::ValuesIn(kGiocate), perNome);

TEST_F(Verifica, AFailureEndsTheRunSilentlyAndLeavesWhatWasWritten) {
  const auto prima = " Previsione n.°1| Metodo: A| Ruote: Ba| Ambate: 7|| Esito:| Negativo" + kFine;
  const struct {
    const char* nome;
    std::vector<SlotProva> slot;  // of B
    std::string scritto;          // of them
  } casi[] = {{"ten predictions", std::vector(10, kAmbata), ""},
              {"a list without an end", {gioca({1}, std::vector<int>(180, 7))}, ""},
              {"Tutte alone",
               {gioca({12}, {}, {5, 6, 99})},
               "| Previsione n.°2| Metodo: B| Ruote: Tutte| Ambi Secchi: 5-6|| Esito:"}};
  for (const char* nome : {"A", "C"}) scriviMetodoProva(p, nome, {kAmbata});
  archivio(105);
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.nome);
    scriviMetodoProva(p, "B", caso.slot);
    EXPECT_EQ(verifica(101, "101"), rapportoDi(prima + caso.scritto));
    attende(caso.scritto.empty() ? 1 : 2, 0, 0);
  }
  EXPECT_EQ(verifica(101, "101a"), "") << "a number that is none";
  p.scrivi("Metodi/Z.txt", "");
  EXPECT_EQ(verifica(101, "101"), "") << "a file that is no method";
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
