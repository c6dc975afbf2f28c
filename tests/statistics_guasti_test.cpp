#include <gmock/gmock.h>

#include "sostegno/corsa_prova.h"

namespace vaticlo::prova {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

SlotProva ambata(int estrazione) {
  return {.estrazione = estrazione, .ruote = {1}, .colpi = 2, .ambate = {7}};
}
SlotProva ambo(int estrazione, std::vector<int> ruote, std::vector<int> ambi) {
  return {.estrazione = estrazione, .ruote = std::move(ruote), .colpi = 2, .ambi = std::move(ambi)};
}

TEST_F(Corsa, AFailureLosesTheRestOfItsDrawAndNoMore) {
  using Slot = std::vector<SlotProva>;
  const std::tuple<Slot, int, const char*> casi[] = {
      // what stands in B, the predictions taken, the entries
      {Slot({ambo(101, {12}, {5, 6, 99}), ambata(101)}), 4, "1A 3A 4C "},
      {Slot({ambo(101, {1}, std::vector<int>(180, 7))}), 3, "1A 2A 3C "},
      {Slot(10, ambata(305)), 2, "1A 2A "},
  };
  archivio(archivioDi(110));
  for (const char* nome : {"A", "C"}) scriviMetodoProva(p, nome, {ambata(101), ambata(102)});
  for (const auto& [slot, giocabili, attese] : casi) {
    scriviMetodoProva(p, "B", slot);
    corri(101, 102);
    EXPECT_EQ(p.globals().ContaGiocabili, giocabili);
    EXPECT_EQ(voci(), attese);
  }
}

TEST_F(Corsa, ALineOfTheTotalsThatFailsIsLostAlone) {
  archivio(archivioDi(2));
  corri(-1, 2);
  EXPECT_THAT(stat(), StartsWith(rapportoDi("Estrazione di fine statistica:  n° 2 del 12/3/2005||"
                                            "Previsioni Giocabili: 0|")));
  EXPECT_EQ(frm.eventi, " 0 iniziata max4 1 2 3 4");
}

TEST_F(Corsa, AMethodIsReadWhenTheScanOfADrawReachesIt) {
  archivio(archivioDi(110));
  scriviMetodoProva(p, "B", std::vector<SlotProva>(10, ambata(101)));
  p.scrivi("Metodi/Z.txt", "");
  corri(101, 102);
  EXPECT_FALSE(p.esiste("Metodi/.dat")) << "behind a method that stops each scan";
  scriviMetodoProva(p, "B", {ambata(101)});
  corri(102, 101);
  EXPECT_FALSE(p.esiste("Metodi/.dat")) << "no draw to scan";
  corri(101, 101);
  EXPECT_TRUE(p.esiste("Metodi/.dat")) << "a file without .dat is read under an empty name";
  EXPECT_THAT(vincite(), StartsWith(rapportoDi(" Previsione n.°1| Metodo: B")));
  frm.scelto = {false, "Nuovo"};
  corri(101, 101);
  EXPECT_TRUE(p.esiste("Metodi/Nuovo.dat"));
  EXPECT_EQ(vincite(), "");
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

TEST_F(Corsa, TheAmbiATutteGrowUntilTheProgramEnds) {
  archivio(archivioDi(110, "102 Ba 5 6"));
  scriviMetodoProva(p, "M", {ambo(101, {1, 12}, {5, 6, 99}), ambata(108)});
  const auto giocate = [](const char* ruota, const char* tutte) {
    return HasSubstr(rapportoDi("Ambate vincenti: 0 (0%)|Ambi secchi vincenti a ruota: " +
                                std::string(ruota) + "|Ambi secchi vincenti a tutte: " + tutte + "|"));
  };
  corri(101, 102);
  EXPECT_THAT(stat(), giocate("1 (50%)", "1 (50%)"));
  corri(101, 102);
  EXPECT_THAT(stat(), giocate("1 (33,3%)", "2 (66,7%)"));
  p.globals().MetodoScelto = 2;
  corri(101, 102);
  EXPECT_THAT(stat(), giocate("1 (33,3%)", "2 (66,7%)")) << "without a scan the bets of the last one stay";
  EXPECT_THAT(stat(), HasSubstr(rapportoDi("Previsioni Giocabili: 0|")));
  EXPECT_EQ(vincite() + prevGioco() + frm.eventi, " 0 iniziata");
  p.globals().MetodoScelto = 1;
  corri(108, 109);
  EXPECT_THAT(stat(), giocate("0 (0%)", "2 (100%)"));
}

TEST_F(Corsa, AStopIsHonouredBetweenTwoDraws) {
  archivio(archivioDi(110));
  scriviMetodoProva(p, "M", {ambata(101), ambata(109), ambata(102), ambata(101)});
  p.globals().StopElaborazione = true;
  p.servizi.allaPausa = [this] { p.globals().StopElaborazione = true; };
  corri(101, 109);
  EXPECT_EQ(frm.eventi, " 0 iniziata max9 1 interrotta") << "a request from before the run is forgotten";
  EXPECT_EQ(stat(), "");
  EXPECT_THAT(vincite(), EndsWith(rapportoDi("| Esito: Negativo| " + std::string(47, '_'))));
  EXPECT_THAT(vincite(), Not(HasSubstr("n.102")));
  EXPECT_EQ(p.globals().ContaGiocabili, 2);
}

}  // namespace
}  // namespace vaticlo::prova
