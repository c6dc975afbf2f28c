#include <gmock/gmock.h>

#include "sostegno/corsa_prova.h"

namespace vaticlo::prova {
namespace {

using testing::HasSubstr;

const std::string kFineVincite = "| " + std::string(47, '_'), kFineInGioco = "| " + std::string(37, '_');

SlotProva ambata(int estrazione, int colpi = 2) { return {estrazione, {89, 9}, {1}, colpi, {7}}; }

TEST_F(Corsa, LeavesTotalsEndedPredictionsAndThoseInPlay) {
  scriviMetodoProva(p, "Metodo 1",
                    {{5432, {89, 9, 12, 34}, {1, 2}, 3, {12}, {5, 6, 99}, {1, 2, 3, 99}},
                     {.estrazione = 5433, .ruote = {8, 12}, .colpi = 2, .ambi = {8, 9, 99}},
                     {.estrazione = 5434, .ruote = {11}, .colpi = 5, .ambate = {7}}});
  archivio(archivioDi(5436, "5434 Ba 12,5434 Ca 5 6 1 2 3").data(5433, 15, 3, 2005).data(5434, 17, 3, 2005));
  corri(5432, 5434);
  EXPECT_EQ(vincite(),
            rapportoDi(" Previsione n.°1| Metodo: Metodo 1| Numero di Telefono di previsione: 899.12.34|"
                       " Data di Calcolo:  Estrazione n.5432 del 12/3/2005| Ruote: Ba-Ca| Ambate: 12|"
                       " Ambi Secchi: 5-6| Sorti Superiori: 1-2-3||"
                       " Esito:  E 12 Ba ** A 5-6 Ca ** Tl 1 2 3 Ca ** 2° colpo|" +
                       kFineVincite +
                       "| Previsione n.°2| Metodo: Metodo 1|"
                       " Data di Calcolo:  Estrazione n.5433 del 15/3/2005| Ruote: Ro-Tutte|"
                       " Ambi Secchi: 8-9|| Esito: Negativo" +
                       kFineVincite));
  EXPECT_EQ(prevGioco(),
            rapportoDi(" Previsione n.°1| Metodo: Metodo 1| Calcolata nell'estrazione n° 5434 del  17/3/2005|"
                       " Colpi ancora in gioco: 3| Ruote: Naz| Ambate: 7" +
                       kFineInGioco));
  EXPECT_EQ(stat(),
            rapportoDi("Estrazione di Inizio statistica:  n° 5432 del 12/3/2005|"
                       "Estrazione di fine statistica:  n° 5434 del 17/3/2005||Previsioni Giocabili: 3|"
                       "Previsioni Non Giocabili: 0|Previsioni Vincenti: 1 (50%)|"
                       "Previsioni Negative: 1 (50%)|Previsioni in gioco: 1||Ambate vincenti: 1 (16,7%)|"
                       "Ambi secchi vincenti a ruota: 1 (16,7%)|Ambi secchi vincenti a tutte: 0 (0%)|"
                       "Ambi vincenti in sorti superiori: 3 (50%)|"
                       "Terni vincenti in sorti superiori: 1 (16,7%)|"
                       "Quaterne vincenti in sorti superiori: 0 (0%)|"
                       "Cinquine vincenti in sorti superiori: 0 (0%)||"));
  EXPECT_EQ(frm.eventi, " 0 iniziata max3 1 2 3");
}

TEST_F(Corsa, TheFirstWinningColpoIsCountedBetByBet) {
  struct Caso {
    SlotProva slot;
    const char *uscite, *esito, *conti;  // ambate, ambi a ruota, a tutte, then ambi to cinquine in sorti
  };
  const SlotProva ambate = {.estrazione = 101, .ruote = {1, 2}, .ambate = {7, 8}};
  const SlotProva ambo = {.estrazione = 101, .ruote = {1, 2, 12}, .ambi = {5, 6, 99}};
  const SlotProva sorte = {.estrazione = 101, .ruote = {1, 2}, .sup = {1, 2, 3, 4, 5, 99}};
  const Caso casi[] = {
      {ambate, "103 Ba 8 7,103 Ca 7,104 Ba 7", " E 7 Ba ** E 7 Ca ** E 8 Ba ** 2° colpo", "3 0 0 0 0 0 0"},
      {ambo, "102 Ba 5 6", " A 5-6 Ba ** A 5-6 Tu(Ba) ** A 5-6 Tu(Ba) ** 1° colpo", "0 1 2 0 0 0 0"},
      {ambo, "102 Naz 5 6", " A 5-6 Tu(Naz) ** A 5-6 Tu(Naz) ** 1° colpo", "0 0 2 0 0 0 0"},
      {sorte, "102 Ba 1 2,102 Ca 3 1", " Al 1 2 Ba ** Al 1 3 Ca ** 1° colpo", "0 0 0 2 0 0 0"},
      {sorte, "102 Ba 1 2 3 4", " Ql 1 2 3 4 Ba ** 1° colpo", "0 0 0 6 4 1 0"},
      {sorte, "102 Ba 5 4 3 2 1", " Cl 1 2 3 4 5 Ba ** 1° colpo", "0 0 0 10 10 5 1"},
  };
  for (const auto& caso : casi) {
    auto& g = p.globals();
    g.AmbiTutte = 0;
    archivio(archivioDi(104, caso.uscite));
    scriviMetodoProva(p, "M", {caso.slot});
    corri(101, 102);
    EXPECT_THAT(vincite(), HasSubstr(rapportoDi(" Esito: " + std::string(caso.esito) + "||")));
    std::ostringstream conti;
    conti << g.AmbateVincenti << ' ' << g.AmbiRuota << ' ' << g.AmbiTutte << ' ' << g.AmbiSorti << ' '
          << g.TerniSorti << ' ' << g.QuaterneSorti << ' ' << g.CinquineSorti;
    EXPECT_EQ(conti.str(), caso.conti) << caso.uscite;
    EXPECT_EQ(g.ContaVincenti, 1);
  }
}

TEST_F(Corsa, WonLostAndInPlayAreParted) {
  using Slot = std::vector<SlotProva>;
  struct Caso {
    Slot slot;
    const char *uscite, *vincenti, *negative, *resto, *voci;
  };
  // The archive ends with draw 104.
  const Caso casi[] = {
      {{}, "", "0 (0%)", "0 (0%)", "0|||", ""},
      {Slot({ambata(102)}), "", "0 (0%)", "1 (100%)", "0|||", "1M "},  // its last colpo is the last draw
      {Slot({ambata(103), ambata(104, 0)}), "", "0 (0%)", "1 (100%)", "1|||", "2M "},
      {Slot({ambata(104)}), "", "0 (0%)", "0 (0%)", "1|||", ""},
      {Slot({ambata(103), ambata(102, 1), ambata(101, 1)}), "104 Ba 7", "1 (33,3%)", "2 (66,7%)",
       "0||Ambate vincenti: 1 (100%)|", "1M 2M 3M "},
      {Slot({ambata(101), ambata(102), ambata(104)}), "103 Ba 7", "2 (100%)", "0 (0%)",
       "1||Ambate vincenti: 2 (100%)|", "1M 2M "},
  };
  for (const auto& caso : casi) {
    archivio(archivioDi(104, caso.uscite));
    scriviMetodoProva(p, "M", caso.slot);
    corri(101, 104);
    EXPECT_THAT(stat(), HasSubstr(rapportoDi("Previsioni Vincenti: " + std::string(caso.vincenti) +
                                             "|Previsioni Negative: " + caso.negative +
                                             "|Previsioni in gioco: " + caso.resto)));
    EXPECT_EQ(voci(), caso.voci);
    EXPECT_EQ(vincite().find("Telefono") != std::string::npos, caso.vincenti[0] != '0') << "winners alone";
  }
}

TEST_F(Corsa, ARangeTakesItsCalculationDrawsAndPlaysThemToTheEndOfTheArchive) {
  archivio(archivioDi(110, "105 Ba 7"));
  scriviMetodoProva(p, "B", {ambata(102, 5), ambata(103, 5)});
  scriviMetodoProva(p, "A", {ambata(104, 5), ambata(101, 5), ambata(103, 5)});
  corri(102, 103);
  EXPECT_EQ(voci(), "1B 2A 3B ");
  EXPECT_EQ(p.globals().ContaVincenti, 3);
}

}  // namespace
}  // namespace vaticlo::prova
