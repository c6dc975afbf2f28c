#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "methods/decodifica.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(MethodFile, KeepsTenSlotsInterleavedByteByByte) {
  const ProgrammaProva p;
  for (const auto& [slot, campo, pos, posto] : {std::tuple{1, kCampoEstrazione, 1, 0},
                                                {3, kCampoRuote, 2, 92},
                                                {3, kCampoAmbi, 4, 262},
                                                {10, kCampoSup, 180, 12599}}) {
    FileMetodo metodo;
    metodo(slot, campo, pos) = 77;
    ScriviMetodo(p.cartella(), "Metodo 1", metodo);
    std::string attesi(12600, '\0');
    attesi[static_cast<std::size_t>(posto)] = 77;
    EXPECT_TRUE(p.contenuto("Metodi/Metodo 1.dat") == attesi) << posto;
    EXPECT_EQ(std::as_const(metodo)(slot, campo, pos),
              LeggiMetodo(p.cartella(), "Metodo 1")(slot, campo, pos));
  }
}

FileMetodo calcolateSu(const Celle& estrazioni) {
  std::vector<SlotProva> slot;
  for (const int estrazione : estrazioni) slot.push_back({.estrazione = estrazione});
  return metodoProva(slot);
}

TEST(MethodFile, ASlotCountsAsTakenForTheScansForTheListAndForTheSaveInThreeWays) {
  // How many the scans see, how many the editor lists, and where the next one is saved.
  const auto conta = [](const Celle& estrazioni) {
    const auto metodo = calcolateSu(estrazioni);
    return std::array{ContaPrevisioni(metodo), ContaElencate(metodo), PrimoSlotLibero(metodo)};
  };
  EXPECT_THAT(conta({}), ElementsAre(0, 0, 1));
  EXPECT_THAT(conta({57, 3501, 3500, 3502}), ElementsAre(2, 4, 1));
  EXPECT_THAT(conta({3501, 57, 3502}), ElementsAre(3, 3, 2));
  EXPECT_THAT(conta({100, 200}), ElementsAre(0, 2, 3));
  EXPECT_THAT(conta(Celle(9, 101)), ElementsAre(9, 9, 10));
  const auto pieno = calcolateSu(Celle(10, 101));
  EXPECT_EQ(failureDi([&] { return ContaPrevisioni(pieno); }), 9);
  EXPECT_EQ(failureDi([&] { return ContaElencate(pieno); }), 9);
  EXPECT_EQ(PrimoSlotLibero(pieno), 0);
}

TEST(MethodFile, ASlotIsEmptiedWholeAndAloneAndNoneCanBeTakenAway) {
  FileMetodo metodo, atteso;
  std::ranges::fill(metodo.ottetti(), std::uint8_t{7});
  for (std::size_t n = 0; n < FileMetodo::Ottetti; ++n)
    atteso.ottetti()[n] = n % FileMetodo::Slot == 3 ? 0 : 7;  // the slot runs fastest
  SvuotaSlot(metodo, 4);
  EXPECT_TRUE(std::ranges::equal(metodo.ottetti(), atteso.ottetti()));
  EXPECT_EQ(failureDi([&] { return SenzaPrevisione(metodo, 2); }), 9);
}

TEST(MethodFile, IsTheTrimmedNameWithDatInsideTheFolderOfTheMethods) {
  const ProgrammaProva p;
  const auto metodi = cartellaMetodi(p.cartella());
  p.scrivi("Metodi/Metodo 1.dat", "");
  std::filesystem::create_directory(metodi / "Cartella.dat");
  EXPECT_EQ(fileMetodo(p.cartella(), "  Metodo 1 "), metodi / "Metodo 1.dat");
  EXPECT_TRUE(esisteMetodo(p.cartella(), " Metodo 1"));
  for (const auto* nome : {"Metodo 2", "Cartella", "../Metodi/Metodo 1"})
    EXPECT_FALSE(esisteMetodo(p.cartella(), nome)) << nome;
  EXPECT_EQ(failureDi([&] { return fileMetodo(p.cartella(), "../archivion71"); }), 52);
}

/// One scan: each prediction is decoded over what the one before it has left.
class Decoding : public testing::Test {
 protected:
  const Previsione& decodifica(const SlotProva& slot) {
    decodificatore.DecodificaPrevisione(metodoProva({slot}), 1, previsione);
    return previsione;
  }
  Decodificatore decodificatore;
  Previsione previsione;
};

TEST_F(Decoding, ReadsTheTelephoneNumberUpToAZeroGroup) {
  const auto numero = [&](const Celle& celle) { return decodifica({.telefono = celle}).NumeroTelefono; };
  EXPECT_EQ(numero({}), "");
  EXPECT_EQ(numero({255, 9, 9, 10, 200}), "2559.09.10.200");
  EXPECT_EQ(numero({89, 9, 12, 0, 34}), "899.12");
  EXPECT_EQ(numero({89, 9, 0, 12}), "899.00.12");
  EXPECT_EQ(numero({0, 9, 12}), ".12");
}

TEST_F(Decoding, TakesTheFirstWheelUntestedAndTutteOutOfTheList) {
  const auto ruote = [&](const Celle& celle) { return decodifica({.ruote = celle}).Ruote; };
  EXPECT_THAT(ruote({3, 12, 3}), ElementsAre(3, 3));
  EXPECT_TRUE(previsione.Tutte);
  EXPECT_THAT(ruote({12}), IsEmpty());
  EXPECT_TRUE(previsione.Tutte);
  EXPECT_THAT(ruote({}), ElementsAre(0));
  EXPECT_FALSE(previsione.Tutte);
  EXPECT_THAT(ruote({0, 4, 0, 5}), ElementsAre(0, 4));
  EXPECT_FALSE(previsione.Tutte);
}

TEST_F(Decoding, WalksTheAmbateFromTheSecondCellEvenBehindAnEmptyFirstOne) {
  EXPECT_THAT(decodifica({.ambate = {12, 34, 0, 5}}).Ambate, ElementsAre(12, 34));
  EXPECT_THAT(decodifica({.ambate = {0, 5, 6}}).Ambate, ElementsAre(5, 6));
  EXPECT_THAT(decodifica({}).Ambate, IsEmpty());
}

TEST_F(Decoding, SeesOnlyFirstAndLastNumberOfAGroupOfAmbiAndCarriesTheSecondOver) {
  const auto ambi = [&](const Celle& celle) { return decodifica({.ambi = celle}).Ambi; };
  EXPECT_THAT(ambi({7, 99}), ElementsAre(Pair(7, 0)));
  EXPECT_THAT(ambi({1, 2, 3, 99, 7, 99, 5, 6, 99}), ElementsAre(Pair(1, 3), Pair(7, 3), Pair(5, 6)));
  EXPECT_THAT(ambi({8, 99}), ElementsAre(Pair(8, 6)));  // of another prediction
  EXPECT_THAT(ambi({10, 20}), IsEmpty());               // not closed
  EXPECT_THAT(ambi({30, 99, 99}), ElementsAre(Pair(30, 20), Pair(30, 20)));
  EXPECT_THAT(ambi({99, 5, 6, 99}), ElementsAre(Pair(5, 6)));
  EXPECT_THAT(ambi({0, 1, 2, 99}), IsEmpty());
}

TEST_F(Decoding, SplitsTheCombinationsAtTheirClosingCells) {
  const auto sup = [&](const Celle& celle) { return decodifica({.sup = celle}).Sup; };
  EXPECT_THAT(sup({1, 2, 99, 3, 99, 4, 5, 6, 99}),
              ElementsAre(ElementsAre(1, 2), ElementsAre(3), ElementsAre(4, 5, 6)));
  EXPECT_THAT(sup({1, 2, 99, 99}), ElementsAre(ElementsAre(1, 2)));
  EXPECT_THAT(sup({99, 5, 99}), ElementsAre(ElementsAre(99), ElementsAre(5)));
  EXPECT_THAT(sup({1, 2}), IsEmpty());
  EXPECT_THAT(sup({0, 1, 2, 99}), IsEmpty());
}

TEST_F(Decoding, FailsOnAListWithoutAnEnd) {
  const Celle celle(180, 5);
  for (const auto& slot : {SlotProva{.telefono = Celle(178, 5)},
                           {.ruote = celle},
                           {.ambate = celle},
                           {.ambi = celle},
                           {.sup = celle}})
    EXPECT_EQ(failureDi([&] { return decodifica(slot); }), 9);
  EXPECT_THAT(decodifica({.ambate = Celle(179, 5)}).Ambate, Each(5));
}

TEST(Catalogue, NamesEachMethodUpToItsFirstDatInTheOrderOfTheFolder) {
  ProgrammaProva p;
  for (const auto* nome : {"b.dat.dat", "Metodo 2.dat", "A.dat.bak"})
    p.scrivi(std::string("Metodi/") + nome, "");
  EXPECT_THAT(CaricaElencoMetodi(p.cartella(), {}), ElementsAre("A", "b", "Metodo 2"));
  EXPECT_THAT(CaricaElencoMetodi(p.cartella(), {false, " b "}), ElementsAre(" b "));
  p.scrivi("Metodi/C.DAT", "");
  EXPECT_EQ(failureDi([&] { return CaricaElencoMetodi(p.cartella(), {}); }), 5);
  EXPECT_THAT(CaricaElencoMetodi(p.cartella(), {}, NomeSenzaDat::VoceVuota),
              ElementsAre("A", "b", "", "Metodo 2"));
  EXPECT_THAT(metodiOfferti(p.cartella()), ElementsAre("Metodo 1", "Metodo 2", "A", "b"));
}

}  // namespace
}  // namespace vaticlo::prova
