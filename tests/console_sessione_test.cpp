#include <iostream>

#include "platform/file_intero.h"
#include "sostegno/console_prova.h"

namespace vaticlo::prova {
namespace {

TEST(RefusedMessage, IsNotForgottenByOnesThatFollow) {
  ServiziConsole servizi;
  testing::internal::CaptureStdout();
  servizi.mostra({"notizia", "Attenzione"});
  EXPECT_FALSE(servizi.rifiutato()) << "a title says nothing";
  servizi.mostra({.testo = "rifiuto", .genere = Genere::Rifiuto});
  servizi.mostra({"notizia"});
  EXPECT_TRUE(servizi.rifiutato());
  EXPECT_EQ(servizi.mostra({"domanda", "", Genere::Domanda}), Risposta::Si);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "[Attenzione] notizia\n[Vaticlo] rifiuto\n[Vaticlo] notizia\n");
}

TEST_F(Console, AFileOfCommandsThatHasNoEndOrIsNoTextIsRefused) {
  EXPECT_EQ(eseguiFile("metodo elenco\n" + std::string(std::size_t{2} << 20, 'x') + "\nmetodo crea Mai\n"),
            2);
  EXPECT_THAT(errori, StartsWith("riga 2: più lunga"));
  EXPECT_EQ(eseguiFile("\xFF\xFEm\0"), 2);
  EXPECT_THAT(errori, HasSubstr("UTF-16"));
  std::filesystem::resize_file(p.radice / "comandi.txt", kMassimoTesto + 1);
  EXPECT_EQ(esegui("esegui @/comandi.txt"), 2);
  EXPECT_THAT(errori, HasSubstr("più lungo di 64 MiB"));
  EXPECT_FALSE(p.esiste("Metodi/Mai.dat"));
}

TEST_F(Console, AFolderThatIsNotThereIsOnlyBegunByWhatFillsIt) {
  const auto in = [this](const std::string& cartella, std::vector<std::string> parole) {
    parole.insert(parole.begin(), {"--cartella", cartella});
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int stato = Sessione().esegui(parole);
    errori = testing::internal::GetCapturedStderr();
    testing::internal::GetCapturedStdout();
    return stato;
  };
  const auto nuova = testoDi(p.radice / "nuova");
  EXPECT_EQ(in(nuova, {"metodo", "elenco"}), 2);
  EXPECT_THAT(errori, HasSubstr(nuova));
  EXPECT_FALSE(p.esiste("nuova"));
  EXPECT_EQ(in("", {"metodo", "crea", "M"}), 2);
  EXPECT_EQ(in(nuova, {"metodo", "crea", "M"}), 0);
  EXPECT_TRUE(p.esiste("nuova/Metodi/M.dat"));
}

TEST_F(Console, WhatIsStoredIsNoErrorWhenTheStandardOutputTakesNoText) {
  std::cout.setstate(std::ios::badbit);
  EXPECT_EQ(esegui("inserisci 16/03/2005 NUMERI"), 0);
  EXPECT_THAT(errori, StartsWith("Fatto"));
  std::cout.setstate(std::ios::badbit);
  EXPECT_EQ(eseguiFile("metodo crea M"), 0) << "each command answers for itself";
  std::cout.setstate(std::ios::badbit);
  EXPECT_EQ(esegui("estrazione 1"), 1);
  EXPECT_THAT(errori, StartsWith("Errore di run-time 61"));
}

}  // namespace
}  // namespace vaticlo::prova
