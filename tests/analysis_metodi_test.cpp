#include "analysis/elenco_previsioni.h"
#include "analysis/parole_confronto.h"
#include "analysis/situazione.h"
#include "analysis/tabelle.h"
#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

using Slot = std::vector<SlotProva>;

SlotProva ambata(int estrazione, int numero = 7, int colpi = 2) {
  return {.estrazione = estrazione, .ruote = {1}, .colpi = colpi, .ambate = {numero}};
}
SlotProva amboSuTutte(int estrazione) {
  return {.estrazione = estrazione, .ruote = {12}, .colpi = 2, .ambi = {5, 6, 99}};
}

/// Methods in a folder of their own; draw 110 is the last, and Bari is drawn in every one.
class Metodi : public testing::Test {
 protected:
  Metodi() {
    ArchivioProva archivio(110);
    for (int d = 1; d <= 110; ++d) archivio.ruota(d, 1, {90, 89, 88, 87, d == 103 ? 7 : 86});
    archivio.ruota(102, 2, {5, 6}).scrivi(p);
  }
  [[nodiscard]] std::vector<MetodoGiudicato> giudica(int dal = 1, int al = 110) const {
    return giudicaMetodi(p.cartella(), archivio(), CaricaElencoMetodi(p.cartella(), {}), {dal, al});
  }
  [[nodiscard]] std::string quadro(int dal = 1, int al = 110) const {
    return testoCsv(tabellaDel(quadroDei(giudica(dal, al), archivio())));
  }
  [[nodiscard]] ArchivioEstrazioni archivio() const { return ApriArchivio(p.cartella()); }
  ProgrammaProva p;
};

const std::string kColonne =
    "Metodo;Previsioni;Giocate;Vincenti;Negative;In gioco;Vincenti %;Attese %;Colpo medio;Stato\r\n";

TEST_F(Metodi, ThatNobodyJudgesAreNamedAndHoldUpNoOther) {
  scriviMetodoProva(p, "A", Slot(10, ambata(101)));
  scriviMetodoProva(p, "B", {ambata(101), ambata(200), ambata(105)});
  scriviMetodoProva(p, "C", {ambata(101), {}, ambata(105)});
  std::filesystem::create_directory(fileMetodo(p.cartella(), "D"));
  p.scrivi("Metodi/D .dat", "");  // read under the name of the folder
  scriviMetodoProva(p, "E", {ambata(57)});
  EXPECT_EQ(quadro(), kColonne +
                          "A;0;0;0;0;0;;;;dieci previsioni\r\nB;1;1;1;0;0;100;10,8;2;previsioni non viste\r\n"
                          "C;1;1;1;0;0;100;10,8;2;previsioni non viste\r\n"
                          "D ;0;0;0;0;0;;;;illeggibile\r\nE;1;1;0;1;0;0;10,8;;\r\n");
}

TEST_F(Metodi, ThePredictionsOfOneSayHowTheyHaveDone) {
  scriviMetodoProva(p, "A",
                    {ambata(102),
                     ambata(105),
                     ambata(109, 7, 5),
                     ambata(110, 7, 1),
                     amboSuTutte(101),
                     {.estrazione = 101, .ruote = {1, 2, 12}, .ambi = {5, 6, 99}, .sup = {5, 6, 7, 99}},
                     {.estrazione = 101, .ruote = {13}, .ambate = {7}},
                     {.estrazione = 200, .ruote = {1}, .ambate = {7}}});
  const auto esiti = [this] {
    std::string testo;
    for (const auto& voce : elencoPrevisioni(LeggiMetodo(p.cartella(), "A"), archivio()))
      testo += std::to_string(voce.slot) + " " + voce.esito + "|";
    return testo;
  };
  EXPECT_EQ(esiti(),
            "1 vinta al 1° colpo: ambata 7 Ba|2 negativa|3 in gioco, ancora 4 colpi|"
            "4 in gioco, ancora 1 colpo|5 non giudicabile: gli ambi su Tutte vogliono anche una ruota|"
            "6 vinta al 1° colpo: ambo 5-6 su Tutte (Ca), ambo 5-6 Ca|"
            "7 non giudicabile: ha una ruota che non esiste|8 non giudicabile: nessuna scansione la vede|");
  const auto prima = elencoPrevisioni(LeggiMetodo(p.cartella(), "A"), archivio()).front();
  EXPECT_EQ(prima.testi.ambate + " " + prima.testi.ruote + " " + prima.data, "7 Ba 12/3/2005");
  scriviMetodoProva(p, "A", Slot(10, ambata(102)));
  EXPECT_THAT(esiti(), EndsWith("10 non giudicabile: il metodo ha dieci previsioni|"));
}

TEST_F(Metodi, AreComparedWithChanceEachAndTogether) {
  scriviMetodoProva(p, "A", {ambata(101), ambata(102), ambata(105), ambata(109)});  // the last one is in play
  scriviMetodoProva(p, "B", {amboSuTutte(101), ambata(103, 86, 1), ambata(106, 90, 0)});
  scriviMetodoProva(p, "C", {amboSuTutte(101)});
  const auto confronti = confrontaColCaso(giudica(), archivio(), {500, 1, 2});
  ASSERT_EQ(confronti.size(), 3U) << "C has no concluded prediction";
  const double p1 = 1.0 / 18, p2 = 17.0 / 18 / 18;
  const auto& a = confronti[0];
  EXPECT_EQ(a.nome, "A");
  EXPECT_EQ(a.concluse, 3);
  EXPECT_EQ(a.vincenti, 2);
  EXPECT_NEAR(a.attese, 3 * (p1 + p2), 1e-12);
  EXPECT_THAT(a.vincentiPerColpo, ElementsAre(1, 1));
  EXPECT_NEAR(a.attesePerColpo.at(1), 3 * p2, 1e-12);
  EXPECT_EQ(a.almeno, static_cast<int>(a.distribuzione.at(2) + a.distribuzione.at(3)));
  // Both wins share draw 103 and the number: both at once are likelier than by themselves.
  EXPECT_NEAR(a.almeno, 500 * 0.06, 25);
  const auto& tutti = confronti[2];
  EXPECT_EQ(tutti.nome + " " + std::to_string(tutti.nonGiudicabili), "Tutti 2");
  EXPECT_EQ(tutti.concluse, 5);
  EXPECT_NEAR(tutti.attese, 3 * (p1 + p2) + p1, 1e-12);
  ASSERT_EQ(tutti.andamento.size(), 6U) << "the draws 102 to 107";
  EXPECT_EQ(tutti.andamento.at(1).estrazione, 103);
  EXPECT_EQ(tutti.andamento.at(1).vincenti, 2);
  EXPECT_EQ(tutti.andamento.back().vincenti, tutti.vincenti);
  EXPECT_NEAR(tutti.andamento.back().attese, tutti.attese, 1e-12);
  EXPECT_EQ(tutti.andamento.back().basso, 0);
  EXPECT_GE(tutti.andamento.back().alto, 1);
}

TEST(Frase, SaysNoMoreThanItsFigures) {
  Confronto c;
  c.concluse = 20;
  c.vincenti = 16;
  c.attese = 15;
  EXPECT_EQ(fraseDel(c), "80% di vincenti; per caso se ne attendono 75%. Senza prove non si può dire altro.");
  c.prove = 999;
  const auto frase = [&c](int almeno, int alPiu) {
    c.almeno = almeno;
    c.alPiu = alPiu;
    return fraseDel(c);
  };
  EXPECT_THAT(frase(429, 700), HasSubstr("75%: 43 prove su 100 fanno almeno così. Il risultato non si "
                                         "distingue dal caso."));
  EXPECT_THAT(frase(49, 970), HasSubstr("75%: 5 prove su 100 fanno almeno così. Per caso succede di rado"));
  EXPECT_THAT(frase(9, 999), HasSubstr("75%: 1 prova su 100 fa almeno così."));
  EXPECT_THAT(frase(0, 999), HasSubstr("75%: 1 prova su 1000 fa almeno così."));
  EXPECT_THAT(frase(990, 19), HasSubstr("75%: 2 prove su 100 fanno così o peggio."));
  EXPECT_EQ(avvertenzaPer(1), "");
  EXPECT_THAT(avvertenzaPer(20), HasSubstr("Di 20 metodi"));
}

TEST_F(Metodi, AreSummedUpWithoutMakingAFile) {
  // Draw 110: 88 in Bari wins at the first colpo of the one, the other two are still played.
  scriviMetodoProva(p, "A", {ambata(109, 88), ambata(109, 1, 5), ambata(110, 1, 3), ambata(101)});
  scriviMetodoProva(p, "Dieci", Slot(10, ambata(101)));
  p.scrivi("Metodi/Tolto.dat.bak", "");  // the listing names "Tolto", as when it is deleted after the listing
  const auto ora = situazioneDi(p.cartella());
  EXPECT_FALSE(p.esiste("Metodi/Tolto.dat"));
  EXPECT_EQ(ora.estrazioni, 110);
  EXPECT_EQ(ora.ultima, dataDiCalendario(12, 3, 2005));
  ASSERT_EQ(ora.inGioco.size(), 2U);
  EXPECT_EQ(ora.inGioco[0].previsione.slot, 3);
  EXPECT_EQ(ora.inGioco[0].colpiRimasti, 3);
  EXPECT_EQ(ora.inGioco[1].colpiRimasti, 4);
  ASSERT_EQ(ora.vinteAllUltima.size(), 1U);
  EXPECT_EQ(ora.vinteAllUltima[0].previsione.esito, "vinta al 1° colpo: ambata 88 Ba");
  ASSERT_EQ(ora.daGuardare.size(), 1U);
  EXPECT_EQ(ora.daGuardare[0].metodo, "Dieci");

  const ProgrammaProva vuoto;
  EXPECT_EQ(situazioneDi(vuoto.cartella()).estrazioni, 0);
  EXPECT_FALSE(vuoto.esiste("archivion71.dat"));
}

}  // namespace
}  // namespace vaticlo::prova
