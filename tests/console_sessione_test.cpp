#include <csignal>
#include <fstream>
#include <iostream>
#include <thread>

#include <sys/stat.h>
#include <sys/time.h>

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
  const auto nuova = (p.radice / "nuova").string();
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
  EXPECT_EQ(esegui("estrazione 1"), 1);
  EXPECT_THAT(errori, StartsWith("Errore di run-time 61"));
}

TEST_F(Console, AReportThatIsNotWholeIsNamedAndItsRunGoesOn) {
  archivioDi(110).scrivi(p);
  scriviMetodoProva(p, "M", {{.estrazione = 101, .ruote = {1}, .colpi = 2, .ambate = {5}}});
  for (const char* nome : {"Vincite.txt", "Esiti.txt"})
    std::filesystem::create_symlink("/dev/full", p.radice / nome);
  EXPECT_EQ(esegui("statistica 99 100"), 0) << "nothing to write into it";
  EXPECT_EQ(esegui("statistica 100 102 --metodo M"), 1);
  EXPECT_THAT(errori, HasSubstr("Vincite.txt"));
  EXPECT_THAT(detto, HasSubstr("Previsioni Giocabili: 1\n"));
  EXPECT_EQ(esegui("verifica 101"), 1);
  EXPECT_THAT(errori, HasSubstr("Esiti.txt"));
  EXPECT_THAT(detto, HasSubstr("Giocabili: 1\n"));
  EXPECT_EQ(esegui("verifica 102"), 0) << "each run for itself";
}

TEST_F(Console, APipeIsWaitedFor) {
  const auto pipe = p.radice / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  std::thread scrittore([&pipe] { std::ofstream(pipe) << "2005/01/08\tBA\t1\t2\t3\t4\t5\n"; });
  EXPECT_EQ(esegui("importa @/pipe"), 0);
  scrittore.join();
}

TEST_F(Console, CtrlCStopsARunWithItsOwnStatus) {
  archivioDi(14990).scrivi(p);
  // The clock of the process presses the keys, every few milliseconds that it works: soon inside a run.
  const auto prima = std::signal(SIGPROF, [](int) { std::raise(SIGINT); });
  const auto diSolito = std::signal(SIGINT, SIG_IGN);
  const itimerval presto{{0, 1000}, {0, 1000}}, mai{};
  ::setitimer(ITIMER_PROF, &presto, nullptr);
  int stato = 0;
  for (int corsa = 0; stato == 0 && corsa < 500; ++corsa) stato = esegui("statistica 1 14990");
  ::setitimer(ITIMER_PROF, &mai, nullptr);
  std::signal(SIGINT, diSolito);
  std::signal(SIGPROF, prima);
  EXPECT_EQ(stato, 130);
  EXPECT_EQ(p.contenuto("Stat.txt"), "");
}

}  // namespace
}  // namespace vaticlo::prova
