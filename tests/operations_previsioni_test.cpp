#include "operations/previsioni_metodo.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

class Previsioni : public testing::Test {
 protected:
  Previsioni() {
    metti("A", {101, 200, 103, 104});  // 200 hides itself and those after it from the scans
    metti("B", {105});
  }
  void metti(const std::string& nome, const std::vector<int>& estrazioni) const {
    std::vector<SlotProva> slot;
    for (const int e : estrazioni)
      slot.push_back({e, {89, 9}, {1}, 10, {e % 100}, {1, 2, 99}, {1, 2, 3, 99}});
    scriviMetodoProva(p, nome, slot);
  }
  /// The predictions of a method as "1:101 2:200 ": slot and draw, each with the ambata of its draw.
  [[nodiscard]] std::string in(const std::string& nome) const {
    const auto metodo = LeggiMetodo(p.cartella(), nome);
    std::string testo;
    for (int slot = 1; slot <= FileMetodo::Slot; ++slot) {
      const int estrazione = metodo.EstrazioneCalcolo(slot);
      if (estrazione == 0) continue;
      EXPECT_EQ(metodo(slot, kCampoAmbate, 1), estrazione % 100);
      EXPECT_EQ(metodo(slot, kCampoSup, 4), 99);
      testo += std::to_string(slot) + ":" + std::to_string(estrazione) + " ";
    }
    return testo;
  }
  ProgrammaProva p;
  PrevisioniMetodo previsioni{p.programma};
};

TEST_F(Previsioni, AreTakenAwayCopiedAndMovedAndEachStepCanBeTakenBack) {
  std::vector<PassoPrevisioni> passi;
  passi.push_back(previsioni.togli("A", {4, 2, 2}));
  EXPECT_EQ(in("A"), "1:101 2:103 ");
  passi.push_back(previsioni.copia("A", {1, 2}, "B"));
  EXPECT_EQ(in("B"), "1:105 2:101 3:103 ");
  passi.push_back(previsioni.duplica("A", {2}));
  EXPECT_EQ(in("A"), "1:101 2:103 3:103 ");
  passi.push_back(previsioni.sposta("B", {1, 2}, "A"));
  EXPECT_EQ(in("A") + "| " + in("B"), "1:101 2:103 3:103 4:105 5:101 | 1:103 ");
  EXPECT_EQ(LeggiMetodo(p.cartella(), "B")(2, kCampoSup, 1), 0) << "nothing is left of a slot given up";
  for (; !passi.empty(); passi.pop_back()) EXPECT_TRUE(previsioni.annulla(passi.back()));
  EXPECT_EQ(in("A") + "| " + in("B"), "1:101 2:200 3:103 4:104 | 1:105 ");
  EXPECT_THAT(p.servizi.messaggi, IsEmpty());
}

TEST_F(Previsioni, WhatDoesNotFitIsRefusedBeforeAnythingIsWritten) {
  metti("N", std::vector<int>(9, 101));
  metti("O", std::vector<int>(8, 101));
  const auto prima = in("A") + in("B") + in("N") + in("O");
  const auto passo = previsioni.duplica("B", {1});
  ASSERT_TRUE(previsioni.annulla(passo));
  EXPECT_FALSE(previsioni.annulla(passo)) << "it was taken back already";
  for (const auto& rifiutato :
       {previsioni.togli("A", {5}), previsioni.togli("A", {1, 11}), previsioni.togli("A", {0}),
        previsioni.copia("A", {1}, "N"), previsioni.sposta("A", {1, 2}, "O"), previsioni.duplica("N", {1}),
        previsioni.sposta("A", {1}, " A"), previsioni.copia("A", {1}, "Mai"), previsioni.togli("Mai", {1})})
    EXPECT_THAT(rifiutato, IsEmpty());
  EXPECT_EQ(in("A") + in("B") + in("N") + in("O"), prima);
  EXPECT_FALSE(p.esiste("Metodi/Mai.dat"));
  const auto detti = p.servizi.detti();
  ASSERT_EQ(detti.size(), 10U);
  EXPECT_THAT(detti[0], HasSubstr("non si può più annullare"));
  EXPECT_THAT(detti[1], HasSubstr("non ha la previsione n.5"));
  EXPECT_THAT(detti[4], HasSubstr("non c'è posto"));
  EXPECT_THAT(detti[7], HasSubstr("è già nel metodo"));
  EXPECT_THAT(detti[8], HasSubstr("Non esiste il file"));
}

}  // namespace
}  // namespace vaticlo::prova
