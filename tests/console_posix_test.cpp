#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include "console/manuale.h"
#include "platform/processo.h"
#include "sostegno/console_prova.h"

namespace vaticlo::prova {
namespace {

using PosixConsole = Console;

TEST_F(PosixConsole, AReportThatIsNotWholeIsNamedAndItsRunGoesOn) {
  archivioDi(110).scrivi(p);
  scriviMetodoProva(p, "M", {{.estrazione = 101, .ruote = {1}, .colpi = 2, .ambate = {5}}});
  for (const char* nome : {"Vincite.txt", "Esiti.txt", "PrevGioco.txt"})
    std::filesystem::create_symlink("/dev/full", p.radice / nome);
  EXPECT_EQ(esegui("statistica 99 100"), 0) << "nothing to write into it";
  EXPECT_EQ(esegui("statistica 100 102 --metodo M"), 1);
  EXPECT_THAT(errori, HasSubstr("Vincite.txt"));
  EXPECT_THAT(detto, HasSubstr("Previsioni Giocabili: 1\n"));
  EXPECT_EQ(esegui("verifica 101"), 1);
  EXPECT_THAT(errori, HasSubstr("Esiti.txt"));
  EXPECT_THAT(detto, HasSubstr("Giocabili: 1\n"));
  EXPECT_EQ(esegui("verifica 102"), 0) << "each run for itself";
  scriviMetodoProva(p, "M", {{.estrazione = 109, .ruote = {1}, .colpi = 2, .ambate = {5}}});
  EXPECT_EQ(esegui("in-gioco"), 1);
  EXPECT_THAT(errori, HasSubstr("PrevGioco.txt"));
}

TEST_F(PosixConsole, ATerminalIsToldFromAnythingElse) {
  const int uscita = ::dup(STDOUT_FILENO), terminale = ::posix_openpt(O_RDWR | O_NOCTTY);
  const int nulla = ::open("/dev/null", O_WRONLY);
  std::cout.flush();
  ::dup2(terminale, STDOUT_FILENO);
  const bool suTerminale = uscitaSulTerminale();
  ::dup2(nulla, STDOUT_FILENO);
  const bool suAltro = uscitaSulTerminale();
  ::dup2(uscita, STDOUT_FILENO);
  for (const int aperto : {uscita, terminale, nulla}) ::close(aperto);
  EXPECT_TRUE(suTerminale);
  EXPECT_FALSE(suAltro);
}

TEST_F(PosixConsole, APipeIsWaitedFor) {
  const auto pipe = p.radice / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  std::thread scrittore([&pipe] { std::ofstream(pipe) << "2005/01/08\tBA\t1\t2\t3\t4\t5\n"; });
  EXPECT_EQ(esegui("importa @/pipe"), 0);
  scrittore.join();
}

/// A pipe that nobody reads any more.
struct PipeRotta : std::streambuf {
  int_type overflow(int_type /*c*/) override { return std::raise(SIGPIPE), traits_type::eof(); }
};

TEST_F(PosixConsole, WhatStoresSaysSoWhenNobodyReadsTheStandardOutput) {
  PipeRotta pipe;
  auto* prima = std::cout.rdbuf(&pipe);
  EXPECT_EQ(esegui("metodo crea M"), 0);
  EXPECT_THAT(errori, StartsWith("Fatto"));
  EXPECT_EXIT(sessione.esegui({"metodo", "elenco"}), testing::KilledBySignal(SIGPIPE), "");
  std::cout.rdbuf(prima);
}

TEST_F(PosixConsole, CtrlCStopsARunWithItsOwnStatus) {
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

/// What bash offers behind these words, the last of which is being typed.
class Completamento : public Console {
 protected:
  std::string offerte(const std::string& parole) {
    p.scrivi("completa.bash", completamento("bash", tavolaComandi()));
    // In place of the program, a command that knows two methods.
    p.scrivi(
        "prova.bash",
        "finto() { printf '%s\\n' 'Ambi di Bari' Ritardatari; }\ncompopt() { :; }\nsource completa.bash\n"
        "COMP_WORDS=(finto " +
            parole +
            "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_vaticlo_cli\n"
            "printf '%s|' \"${COMPREPLY[@]}\" > offerte\n");
    const auto comando = "cd '" + p.radice.string() + "' && bash prova.bash";
    EXPECT_EQ(std::system(comando.c_str()), 0);
    return p.contenuto("offerte");
  }
};

TEST_F(Completamento, OffersCommandsOptionsAndMethods) {
  EXPECT_EQ(offerte("quad"), "quadro|");
  EXPECT_EQ(offerte("previsione s"), "sposta|");
  EXPECT_EQ(offerte("--cartella /da/qualche/parte vin"), "vincenti|");
  EXPECT_EQ(offerte("previsione mostra ''"), "Ambi\\ di\\ Bari|Ritardatari|");
  EXPECT_EQ(offerte("verifica 3 --metodo Rit"), "Ritardatari|");
  EXPECT_EQ(offerte("caso 1 2 --p"), "--prove|");
  EXPECT_EQ(offerte("somdif 2 --tipo ''"), "ciclometrica|matematica|somma|");
  EXPECT_EQ(offerte("ritardi T"), "To|Tutte|");
}

}  // namespace
}  // namespace vaticlo::prova
