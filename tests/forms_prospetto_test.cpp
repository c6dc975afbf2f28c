#include "forms/prospetto.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

using Righe = std::vector<Prospetto::Riga>;

Tabella tabella() {
  constexpr auto kNumero = Colonna::Tipo::Numero;
  return {{{"Nome"}, {"Quota", kNumero, 1}, {"Data", Colonna::Tipo::Giorno}, {"Nota"}},
          {{std::string("Metodo 10"), 9, std::string("7/1/1939"), std::string("sì")},
           {std::string("Metodo 2"), 10.5, std::string("30/12/2025"), {}},
           {std::string("metodo 02b"), {}, std::string("1/2/2025"), std::string("È 10")},
           {std::string("Altro"), 9, std::string("44"), std::string("no")}}};
}

TEST(Prospetto, RowsFollowAColumnAndEmptyFieldsComeLast) {
  Prospetto p;
  p.mostra(tabella());
  const auto ordinate = [&p](unsigned colonna, bool crescente) {
    p.ordina({colonna, crescente});
    return p.mostrate();
  };
  EXPECT_EQ(ordinate(0, true), (Righe{3, 1, 2, 0}));
  EXPECT_EQ(ordinate(0, false), (Righe{0, 2, 1, 3}));
  EXPECT_EQ(ordinate(1, true), (Righe{0, 3, 1, 2}));
  EXPECT_EQ(ordinate(1, false), (Righe{1, 0, 3, 2}));
  EXPECT_EQ(ordinate(2, false), (Righe{1, 2, 0, 3}));
  EXPECT_EQ(ordinate(3, true), (Righe{3, 0, 2, 1}));
  p.ordina({9, true});
  EXPECT_EQ(p.ordine().colonna, 3U) << "there is no such column";
  p.ordina({});
  EXPECT_EQ(p.mostrate(), (Righe{0, 1, 2, 3}));
}

TEST(Prospetto, AFilterHidesRowsAndGivesUpTheChoiceOfThose) {
  Prospetto p(Prospetto::Scelta::Diverse);
  int cambi = 0;
  p.Change = [&] { ++cambi; };
  p.mostra(tabella());
  p.ordina({0, false});
  p.scegli({1, 0, 0, 99});
  EXPECT_EQ(p.scelte(), (Righe{0, 1})) << "in the order shown";
  p.filtra(" METODO 10");
  EXPECT_EQ(p.mostrate(), Righe{0});
  EXPECT_EQ(p.scelte(), Righe{0});
  p.filtra("10");  // of a text and of the first field, not of a number
  EXPECT_EQ(p.mostrate(), (Righe{0, 2}));
  EXPECT_EQ(testoCsv(p.tabellaMostrata()),
            "Nome;Quota;Data;Nota\r\nMetodo 10;9;7/1/1939;sì\r\nmetodo 02b;;1/2/2025;È 10\r\n");
  EXPECT_EQ(p.tabellaScelta().righe.size(), 1U);
  p.filtra("è");
  EXPECT_EQ(p.mostrate(), Righe{2});
  EXPECT_EQ(p.tabellaScelta().righe.size(), 1U) << "all that is shown, when nothing is chosen";
  EXPECT_EQ(cambi, 3);
}

TEST(Prospetto, AnotherTableKeepsOrderAndChoiceByTheFirstField) {
  Prospetto p;
  std::string eventi;
  p.Change = [&] { eventi += "change "; };
  p.Apri = [&] { eventi += "apri "; };
  p.mostra(tabella());
  p.ordina({1, true});
  p.scegli({3, 1});
  EXPECT_EQ(p.scelte(), Righe{3}) << "one at most";
  auto altra = tabella();
  altra.righe.erase(altra.righe.begin());
  p.mostra(altra);
  EXPECT_EQ(p.mostrate(), (Righe{2, 0, 1}));
  EXPECT_EQ(p.scelta(), 2U);
  p.apri(0);
  EXPECT_EQ(p.scelta(), 0U);
  altra.righe.clear();
  p.mostra(altra);
  EXPECT_EQ(p.scelta(), std::nullopt);
  p.apri(0);
  EXPECT_EQ(eventi, "change change apri ");
}

}  // namespace
}  // namespace vaticlo::prova
