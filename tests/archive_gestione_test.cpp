#include "dialogs/controlli_estrazione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// The controls of the entry dialog.
class FinestraProva : public ControlliEstrazione {
 public:
  [[nodiscard]] std::optional<Data> mcdatecombo1_Value() const override { return data; }
  std::optional<Data> data;
};

class DrawStore : public testing::Test {
 protected:
  DrawStore() {
    for (int f = 0; f < kCampiEstrazione; ++f)
      frm.txtestr[static_cast<std::size_t>(f)].Text(std::to_string(f + 1));
  }
  clsGestione gestione() { return {p.cartella(), p.servizi}; }
  [[nodiscard]] std::vector<int> riga(int i, int j) const {
    const auto a = ApriArchivio(p.cartella());
    return {a(i, j, 1), a(i, j, 2), a(i, j, 3), a(i, j, 4), a(i, j, 5)};
  }
  [[nodiscard]] std::string testa() const { return frm.lblnestr.Caption() + " " + frm.lbldataestr.Caption(); }
  /// What `fai` fails with; the archive must be as before it.
  template <class Fai>
  int failureSenzaTraccia(Fai fai) {
    const auto prima = p.contenuto("archivion71.dat");
    const int numero = failureDi([&] { return fai(), 0; });
    EXPECT_TRUE(p.contenuto("archivion71.dat") == prima);
    return numero;
  }

  ProgrammaProva p;
  FinestraProva frm;
};

TEST_F(DrawStore, ANewDrawGoesToTheFirstFreeSlotWithTheDateOfThePicker) {
  frm.data = dataDaTesto("12/05/2004");
  gestione().salva(frm);
  EXPECT_EQ(p.contenuto("archivion71.dat").size(), 900000U);
  EXPECT_THAT(riga(1, 0), ElementsAre(12, 5, 4, 20, 0));
  EXPECT_THAT(riga(1, 2), ElementsAre(6, 7, 8, 9, 10));
  EXPECT_THAT(riga(1, 11), ElementsAre(51, 52, 53, 54, 55));
  frm.data = dataDaTesto("31/12/1999");  // before the draw above it: taken all the same
  gestione().salva(frm);
  EXPECT_THAT(riga(2, 0), ElementsAre(31, 12, 99, 20, 0));
  frm.data.reset();  // today
  gestione().salva(frm);
  EXPECT_THAT(riga(3, 0), ElementsAre(14, 3, 26, 20, 0));
}

TEST_F(DrawStore, AnEditedDrawKeepsItsDateButForTheCentury) {
  ArchivioProva archivio(2);
  archivio.data(1, 3, 3, 1946).griglia(1, 0, 5) = 9;
  archivio.scrivi(p);
  gestione().Visualizza(frm, 1);
  frm.txtestr[54].Text("90");
  gestione().salva(frm, 1);
  EXPECT_THAT(riga(1, 0), ElementsAre(3, 3, 46, 20, 0));
  EXPECT_THAT(riga(1, 11), ElementsAre(0, 0, 0, 0, 90));
}

TEST_F(DrawStore, ASaveThatFailsLeavesTheArchiveAsItWas) {
  ArchivioProva(2).scrivi(p);
  for (const auto& [testo, numero] : {std::pair{"", 13}, {"x", 13}, {"256", 6}}) {
    frm.txtestr[54].Text(testo);
    EXPECT_EQ(failureSenzaTraccia([&] { gestione().salva(frm); }), numero) << testo;
  }
  frm.txtestr[54].Text("1");
  frm.lbldataestr.Caption("0/0/000");  // a free slot
  EXPECT_EQ(failureSenzaTraccia([&] { gestione().salva(frm, 3); }), 13);
  ArchivioProva(15000).scrivi(p);
  EXPECT_EQ(failureSenzaTraccia([&] { gestione().salva(frm); }), 9);
  EXPECT_EQ(failureSenzaTraccia([&] { gestione().cancella(frm, 1); }), 9);
}

TEST_F(DrawStore, ADeletionClosesTheGapOfAllRowsButTheNazionale) {
  ArchivioProva archivio(10);
  for (int n = 1; n <= 10; ++n)
    archivio.data(n, n, 3, 2005).ruota(n, 1, {n}).ruota(n, 10, {10 + n}).ruota(n, 11, {20 + n, 1});
  archivio.scrivi(p);
  const auto celle = [&](int n) {
    return std::vector{riga(n, 0)[0], riga(n, 1)[0], riga(n, 10)[0], riga(n, 11)[0]};
  };
  gestione().cancella(frm, 5);
  EXPECT_THAT(celle(4), ElementsAre(4, 4, 14, 24));
  EXPECT_THAT(celle(5), ElementsAre(6, 6, 16, 25));
  EXPECT_THAT(celle(10), ElementsAre(0, 0, 0, 30));
  EXPECT_EQ(frm.VScroll1.Max(), 10);
  EXPECT_EQ(testa(), "5 6/3/2005");
  gestione().cancella(frm, 9);  // the last one
  EXPECT_THAT(celle(8), ElementsAre(9, 9, 19, 28));
  EXPECT_EQ(testa(), "9 0/0/000");
}

TEST_F(DrawStore, ASearchWalksOnwardFieldByFieldAndNeverGoesBack) {
  ArchivioProva archivio(0);
  for (int n = 0; const auto* testo : {"7/1/1939", "14/1/1939", "4/2/1939", "31/12/1999", "5/1/2000",
                                       "12/1/2000", "29/1/2000", "2/2/2001", "31/3/2001", "5/4/2001"}) {
    const auto data = *dataDaTesto(testo);
    archivio.data(++n, giorno(data), mese(data), anno(data));
  }
  archivio.scrivi(p);
  const std::tuple<const char*, int, int, int, int, int> casi[] = {
      // day, month, century, year; the draw that is found, 0: none
      {"the very day", 14, 1, 19, 39, 2},
      {"the next draw of the month", 8, 1, 19, 39, 2},
      {"a month of a later year", 1, 3, 19, 39, 9},
      {"a day of a later month", 30, 1, 20, 0, 9},
      {"a year of the next century", 1, 1, 19, 0, 5},
      {"the last draw", 5, 4, 20, 1, 10},
      {"behind the last draw", 6, 4, 20, 1, 0},
      {"a century that is not there", 1, 1, 18, 71, 0}};
  for (const auto& [perche, g, m, secolo, a, trovata] : casi) {
    frm.lblnestr.Caption("0");
    frm.VScroll1.Value(1);
    p.servizi.messaggi.clear();
    gestione().Trova(frm, g, m, secolo, a);
    EXPECT_EQ(p.servizi.detti(),
              std::vector<std::string>(trovata == 0, "[Attenzione] Inserisci una data corretta"))
        << perche;
    EXPECT_EQ(frm.lblnestr.Caption(), std::to_string(trovata)) << perche;
    EXPECT_EQ(frm.VScroll1.Value(), trovata + 1) << perche;
  }
}

}  // namespace
}  // namespace vaticlo::prova
