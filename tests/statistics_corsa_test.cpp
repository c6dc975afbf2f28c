#include "sostegno/logica.h"
#include "statistics/clsstatistica.h"

namespace vaticlo::prova {
namespace {

using Slot = std::vector<SlotProva>;

/// A dialog that notes what a run does to it: " 0 iniziata max4 1", numbers being of the progress bar.
struct PannelloProva : PannelloCorsa {
  [[nodiscard]] SceltaMetodo scelta() const override { return {}; }
  void prgbar_Value(int valore) override { eventi += " " + std::to_string(valore); }
  void prgbar_Max(int massimo) override { eventi += " max" + std::to_string(massimo); }
  void corsaIniziata() override { eventi += " iniziata"; }
  void corsaInterrotta() override { eventi += " interrotta"; }
  std::string eventi;
};

/// Statistics runs in one program, with the scan of method 1 chosen.
class Corsa : public testing::Test {
 protected:
  Corsa() { p.globals().MetodoScelto = 1; }
  void archivio(const ArchivioProva& archivio) {
    archivio.scrivi(p);
    auto& g = p.globals();
    g.apriSullUltima(archivio.griglia.PrimoIndiceLibero());
    g.UltimaEstrazione16 = static_cast<std::int16_t>(g.UltimaEstrazione);
  }
  void corri(int inizio, int fine) {
    frm.eventi.clear();
    clsStatistica statistica(p.programma, frm);
    statistica.Inizia(static_cast<std::int16_t>(inizio), static_cast<std::int16_t>(fine));
    statistica.rilascia();
    EXPECT_EQ(stat().empty(), p.globals().StopElaborazione) << "whole once it is released";
  }
  [[nodiscard]] std::string stat() const { return p.contenuto("Stat.txt"); }
  [[nodiscard]] std::string vincite() const { return p.contenuto("Vincite.txt"); }
  /// The entries of Vincite.txt, each by its number and the first letter of its method: "1A 3B ".
  [[nodiscard]] std::string voci() const {
    std::string voci;
    std::istringstream righe(vincite());
    for (std::string riga; std::getline(righe, riga);) {
      if (riga.starts_with(" Previsione n.")) voci += riga.substr(15, riga.size() - 16);
      if (riga.starts_with(" Metodo: ")) voci += riga.substr(9, 1) + " ";
    }
    return voci;
  }
  ProgrammaProva p;
  PannelloProva frm;
};

SlotProva ambata(int estrazione, int colpi = 2) { return {estrazione, {89, 9}, {1}, colpi, {7}}; }
SlotProva ambo(int estrazione, std::vector<int> ruote, std::vector<int> ambi) {
  return {.estrazione = estrazione, .ruote = std::move(ruote), .colpi = 2, .ambi = std::move(ambi)};
}

TEST_F(Corsa, TheFirstWinningColpoIsCountedBetByBet) {
  const SlotProva ambate = {.estrazione = 101, .ruote = {1, 2}, .ambate = {7, 8}};
  const SlotProva ambi = {.estrazione = 101, .ruote = {1, 2, 12}, .ambi = {5, 6, 99}};
  const SlotProva sorte = {.estrazione = 101, .ruote = {1, 2}, .sup = {1, 2, 3, 4, 5, 99}};
  const struct {
    const char* nome;
    SlotProva slot;
    std::string uscite, esito;
    const char* conti;  // ambate, ambi a ruota, a tutte, in sorti from ambi to cinquine
  } casi[] = {
      {"ambate", ambate, "103 Ba 8 7,103 Ca 7,104 Ba 7", " E 7 Ba ** E 7 Ca ** E 8 Ba ** 2", "3 0 0 0 0 0 0"},
      {"ambi", ambi, "102 Ba 5 6", " A 5-6 Ba ** A 5-6 Tu(Ba) ** A 5-6 Tu(Ba) ** 1", "0 1 2 0 0 0 0"},
      {"on tutte", ambi, "102 Naz 5 6", " A 5-6 Tu(Naz) ** A 5-6 Tu(Naz) ** 1", "0 0 2 0 0 0 0"},
      {"two of five", sorte, "102 Ba 1 2,102 Ca 3 1", " Al 1 2 Ba ** Al 1 3 Ca ** 1", "0 0 0 2 0 0 0"},
      {"five of five", sorte, "102 Ba 5 4 3 2 1", " Cl 1 2 3 4 5 Ba ** 1", "0 0 0 10 10 5 1"},
      {"four of five", sorte, "102 Ba 1 2 3 4", " Ql 1 2 3 4 Ba ** 1", "0 0 0 6 4 1 0"}};
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.nome);
    auto& g = p.globals();
    g.AmbiTutte = 0;
    archivio(archivioDi(104, caso.uscite));
    scriviMetodoProva(p, "M", {caso.slot});
    corri(101, 102);
    EXPECT_THAT(vincite(), HasSubstr(rapportoDi(" Esito: " + caso.esito + "° colpo||")));
    std::ostringstream conti;
    conti << g.AmbateVincenti << ' ' << g.AmbiRuota << ' ' << g.AmbiTutte << ' ' << g.AmbiSorti << ' '
          << g.TerniSorti << ' ' << g.QuaterneSorti << ' ' << g.CinquineSorti;
    EXPECT_EQ(conti.str(), caso.conti);
  }
}

TEST_F(Corsa, WonLostAndInPlayAreSeparated) {
  const struct {
    const char* nome;
    Slot slot;
    const char* uscite;  // up to draw 104
    int vincenti, inGioco;
    const char* voci;
  } casi[] = {{"lost on the last draw", {ambata(102)}, "", 0, 0, "1M "},
              {"in play", {ambata(103), ambata(104, 0)}, "", 0, 1, "2M "},
              {"one won", {ambata(103), ambata(102, 1), ambata(101, 1)}, "104 Ba 7", 1, 0, "1M 2M 3M "},
              {"two won", {ambata(101), ambata(102), ambata(104)}, "103 Ba 7", 2, 1, "1M 2M "}};
  for (const auto& [nome, slot, uscite, vincenti, inGioco, attese] : casi) {
    SCOPED_TRACE(nome);
    archivio(archivioDi(104, uscite));
    scriviMetodoProva(p, "M", slot);
    corri(101, 104);
    EXPECT_EQ(p.globals().ContaVincenti, vincenti);
    EXPECT_EQ(p.globals().ContaInGioco, inGioco);
    EXPECT_EQ(voci(), attese);
    EXPECT_EQ(vincite().find("Telefono") != std::string::npos, vincenti > 0) << "winners alone";
    EXPECT_EQ(p.contenuto("PrevGioco.txt").find("Telefono") != std::string::npos, inGioco > 0);
    if (vincenti == 1) {
      EXPECT_THAT(stat(),
                  HasSubstr(rapportoDi("Previsioni Vincenti: 1 (33,3%)|Previsioni Negative: 2 (66,7%)|")));
    }
  }
  EXPECT_THAT(stat(), HasSubstr(rapportoDi("Previsioni Vincenti: 2 (100%)|Previsioni Negative: 0 (0%)|")));
}

TEST_F(Corsa, AFailureLosesTheRestOfItsDrawAndNoMore) {
  const struct {
    const char* nome;
    Slot slot;  // of B
    int giocabili;
    const char* voci;
  } casi[] = {{"Tutte alone", {ambo(101, {12}, {5, 6, 99}), ambata(101)}, 4, "1A 3A 4C "},
              {"a list without an end", {ambo(101, {1}, std::vector<int>(180, 7))}, 3, "1A 2A 3C "},
              {"ten predictions", Slot(10, ambata(305)), 2, "1A 2A "}};
  archivio(archivioDi(110));
  for (const char* nome : {"A", "C"}) scriviMetodoProva(p, nome, {ambata(101), ambata(102)});
  for (const auto& [nome, slot, giocabili, attese] : casi) {
    SCOPED_TRACE(nome);
    scriviMetodoProva(p, "B", slot);
    corri(101, 102);
    EXPECT_EQ(p.globals().ContaGiocabili, giocabili);
    EXPECT_EQ(voci(), attese);
  }
}

TEST_F(Corsa, ALineOfTheTotalsThatFailsIsLostAlone) {
  archivio(archivioDi(2));
  corri(-1, 2);  // no date for the first draw, no bets to divide by
  EXPECT_EQ(stat(), rapportoDi("Estrazione di fine statistica:  n° 2 del 12/3/2005||Previsioni Giocabili: 0|"
                               "Previsioni Non Giocabili: 0|Previsioni Vincenti: 0 (0%)|"
                               "Previsioni Negative: 0 (0%)|Previsioni in gioco: 0|||"));
  EXPECT_EQ(frm.eventi, " 0 iniziata max4 1 2 3 4");
}

TEST_F(Corsa, AMethodIsReadWhenTheScanOfADrawReachesIt) {
  archivio(archivioDi(110));
  scriviMetodoProva(p, "B", std::vector<SlotProva>(10, ambata(101)));
  p.scrivi("Metodi/Z.txt", "");
  corri(101, 102);
  EXPECT_FALSE(p.esiste("Metodi/.dat")) << "after a method that stops each scan";
  scriviMetodoProva(p, "B", {ambata(101)});
  corri(101, 101);
  EXPECT_TRUE(p.esiste("Metodi/.dat")) << "a file without .dat is read under an empty name";
  EXPECT_THAT(vincite(), StartsWith(rapportoDi(" Previsione n.°1| Metodo: B")));
}

TEST_F(Corsa, ThePairOfAnAmboStartsAnewWithEachDraw) {
  archivio(archivioDi(110));
  scriviMetodoProva(p, "A", {ambo(101, {1}, {12, 34, 99}), ambo(102, {1}, {7, 99})});
  scriviMetodoProva(p, "B", {ambo(101, {1}, {7, 99})});
  corri(101, 102);
  EXPECT_THAT(vincite(), HasSubstr(rapportoDi(" Metodo: B| Data di Calcolo:  Estrazione n.101 del 12/3/2005|"
                                              " Ruote: Ba| Ambi Secchi: 7-34|")));
  EXPECT_THAT(vincite(), HasSubstr(" Ambi Secchi: 7-0\r\n"));
}

TEST_F(Corsa, WithoutAScanTheBetsOfTheLastOneStayAndTheAmbiATutteAddUp) {
  archivio(archivioDi(110, "102 Ba 5 6"));
  scriviMetodoProva(p, "M", {ambo(101, {1, 12}, {5, 6, 99})});
  corri(101, 102);
  corri(101, 102);
  p.globals().MetodoScelto = 2;
  corri(101, 102);
  EXPECT_THAT(stat(), HasSubstr(rapportoDi("Previsioni Giocabili: 0|")));
  EXPECT_THAT(stat(), HasSubstr(rapportoDi("Ambi secchi vincenti a ruota: 1 (33,3%)|"
                                           "Ambi secchi vincenti a tutte: 2 (66,7%)|")));
  EXPECT_EQ(vincite() + p.contenuto("PrevGioco.txt") + frm.eventi, " 0 iniziata");
}

}  // namespace
}  // namespace vaticlo::prova
