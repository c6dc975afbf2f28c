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

SlotProva ambata(int estrazione) {
  return {.estrazione = estrazione, .ruote = {1}, .colpi = 2, .ambate = {7}};
}
SlotProva ambo(int estrazione, std::vector<int> ruote, std::vector<int> ambi) {
  return {.estrazione = estrazione, .ruote = std::move(ruote), .colpi = 2, .ambi = std::move(ambi)};
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
  p.globals().MetodoScelto = 2;
  corri(1, 2);
  EXPECT_EQ(frm.eventi, " 0 iniziata") << "there is no scan";
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

}  // namespace
}  // namespace vaticlo::prova
