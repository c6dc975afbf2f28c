#include <array>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/blocco.h"
#include "platform/file_intero.h"
#include "platform/rapporto.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

namespace fs = std::filesystem;

/// A user to whom something may be refused, when the tests run as root.
class ComeUtente {
 public:
  ComeUtente() { EXPECT_TRUE(::geteuid() != 0 || ::seteuid(kNessuno) == 0); }
  ~ComeUtente() { EXPECT_TRUE(::getuid() != 0 || ::seteuid(0) == 0); }

 private:
  static constexpr uid_t kNessuno = 65534;
};

class Files : public testing::Test {
 protected:
  [[nodiscard]] fs::path percorso(const std::string& nome) const { return p.radice / nome; }
  void leggi(const std::string& nome) { leggiFile(percorso(nome), griglia); }
  void scrivi(const std::string& nome) { scriviFile(percorso(nome), griglia); }

  ProgrammaProva p;
  std::array<std::uint8_t, 6> griglia{'1', '2', '3', '4', '5', '6'};
};

TEST_F(Files, AreReadAsZerosBehindTheirEndAndKeepATailThatIsNotTheirs) {
  p.scrivi("corto", "AB");
  leggi("corto");
  EXPECT_THAT(griglia, ElementsAre('A', 'B', 0, 0, 0, 0));
  leggi("nuovo");
  EXPECT_THAT(griglia, Each(0));
  EXPECT_TRUE(p.esiste("nuovo") && p.contenuto("nuovo").empty());
  p.scrivi("lungo", "abcdefgh");
  leggi("lungo");
  EXPECT_THAT(griglia, ElementsAre('a', 'b', 'c', 'd', 'e', 'f'));
  griglia[0] = '1';
  scrivi("lungo");
  EXPECT_EQ(p.contenuto("lungo"), "1bcdefgh");
}

TEST_F(Files, ThatAreNoPlainOnesFail) {
  ASSERT_EQ(::mkfifo(percorso("tubo").c_str(), 0600), 0);
  for (const auto* nome : {"Metodi", "tubo", "manca/x"}) {
    const int numero = nome == std::string("manca/x") ? 76 : 75;
    EXPECT_EQ(failureDi([&] { return leggi(nome), 0; }), numero) << nome;
    EXPECT_EQ(failureDi([&] { return scrivi(nome), 0; }), numero) << nome;
  }
  EXPECT_EQ(failureDi([&] { return contenutoFile(percorso("manca")); }), 53);
  EXPECT_EQ(failureDi([&] { return FileRapporto(percorso("manca/Stat.txt")), 0; }), 76);
}

TEST_F(Files, ThatMayNotBeWrittenAreReadAndNotReplaced) {
  p.scrivi("chiuso", "AB");
  p.scrivi("Metodi/aperto", "abcdefgh");
  for (const auto& [nome, permessi] :
       {std::pair{"", 0777}, {"chiuso", 0444}, {"Metodi/aperto", 0666}, {"Metodi", 0555}})
    ::chmod(percorso(nome).c_str(), static_cast<mode_t>(permessi));
  const ComeUtente utente;  // nothing is refused to root
  leggi("chiuso");
  EXPECT_THAT(griglia, ElementsAre('A', 'B', 0, 0, 0, 0));
  leggi("Metodi/manca");
  EXPECT_THAT(griglia, Each(0));
  EXPECT_FALSE(p.esiste("Metodi/manca"));
  EXPECT_EQ(failureDi([&] { return scrivi("chiuso"), 0; }), 75);
  EXPECT_EQ(failureDi([&] { return scrivi("Metodi/manca"), 0; }), 75);
  scrivi("Metodi/aperto");
  EXPECT_EQ(p.contenuto("Metodi/aperto"), std::string(6, '\0') + "gh")
      << "in place, where nothing fits beside";
  scriviFile(percorso("Metodi/aperto"), griglia, Scrittura::Intera);
  EXPECT_EQ(p.contenuto("Metodi/aperto"), std::string(6, '\0'));
}

TEST_F(Files, KeepTheirPermissionsAndTheirLinks) {
  p.scrivi("Metodi/vero", "abcdefgh");
  ::chmod(percorso("Metodi/vero").c_str(), 0640);
  fs::create_symlink("vero", percorso("Metodi/altro"));
  fs::create_symlink("Metodi/altro", percorso("dati"));
  fs::create_symlink("Metodi/da fare", percorso("nuovo"));
  p.scrivi("Metodi/.vero.nuovo", "what a killed program left");
  scrivi("dati");
  scrivi("nuovo");
  EXPECT_TRUE(fs::is_symlink(percorso("dati")) && fs::is_symlink(percorso("nuovo")));
  EXPECT_EQ(p.contenuto("Metodi/vero"), "123456gh");
  EXPECT_EQ(p.contenuto("Metodi/da fare"), "123456");
  EXPECT_EQ(static_cast<int>(fs::status(percorso("Metodi/vero")).permissions()), 0640);
  EXPECT_FALSE(p.esiste("Metodi/.vero.nuovo"));
  fs::create_symlink("giro", percorso("giro"));
  EXPECT_EQ(failureDi([&] { return scrivi("giro"), 0; }), 75);
}

TEST_F(Files, NewOnesAndNewNamesCoverNothing) {
  scriviFile(percorso("nuovo"), griglia, Scrittura::Nuova);
  EXPECT_EQ(p.contenuto("nuovo"), "123456");
  p.scrivi("altro", "altro");
  EXPECT_EQ(failureDi([&] { return scriviFile(percorso("altro"), griglia, Scrittura::Nuova), 0; }), 58);
  EXPECT_EQ(failureDi([&] { return rinominaFile(percorso("nuovo"), percorso("altro")), 0; }), 58);
  EXPECT_EQ(p.contenuto("altro"), "altro");
  rinominaFile(percorso("nuovo"), percorso("Metodi/nuovo"));
  EXPECT_EQ(p.contenuto("Metodi/nuovo"), "123456");
  EXPECT_FALSE(p.esiste("nuovo"));
  EXPECT_EQ(failureDi([&] { return rinominaFile(percorso("manca"), percorso("x")), 0; }), 53);
}

// As far as the system knows, what has not the folder opened by the same descriptor is another program.
TEST_F(Files, AFolderIsHeldByOneProgramAtATime) {
  const Descrittore altro(p.radice, O_RDONLY);
  const auto prendi = [&] { return BloccoCartella(p.radice, std::chrono::milliseconds(0)), 0; };
  {
    const BloccoCartella mio(p.radice), ancora(p.radice / "Metodi" / "..");
    EXPECT_NE(::flock(altro.fd(), LOCK_EX | LOCK_NB), 0);
    scrivi("dati");
  }
  ASSERT_EQ(::flock(altro.fd(), LOCK_EX | LOCK_NB), 0);
  EXPECT_EQ(failureDi(prendi), 70);
  std::thread dopo([&] { ::flock(altro.fd(), LOCK_UN); });
  scrivi("dati");
  dopo.join();
  EXPECT_EQ(failureDi(prendi), 0);
}

TEST_F(Files, AreAsTheyWereWhenTheDiskIsFull) {
  p.scrivi("dati", "oldold");
  FileRapporto rapporto(percorso("Stat.txt"));
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit disco{};
  ::getrlimit(RLIMIT_FSIZE, &disco);
  const rlimit pieno{4, disco.rlim_max};  // no file can grow beyond four bytes
  ::setrlimit(RLIMIT_FSIZE, &pieno);
  EXPECT_EQ(failureDi([&] { return scrivi("dati"), 0; }), 61);
  EXPECT_EQ(p.contenuto("dati"), "oldold");
  rapporto.riga("una riga");
  EXPECT_EQ(failureDi([&] { return rapporto.chiudi(), 0; }), 61);
  ::setrlimit(RLIMIT_FSIZE, &disco);
}

TEST_F(Files, AReportHasItsLinesInTheCodePageEndedByCrLf) {
  p.scrivi("Esiti.txt", "the report of an earlier run");
  FileRapporto rapporto(percorso("Esiti.txt"));
  EXPECT_EQ(p.contenuto("Esiti.txt"), "");
  rapporto.riga(" Previsione n.°", 7, " è");
  rapporto.riga();
  rapporto.chiudi();
  EXPECT_EQ(p.contenuto("Esiti.txt"), std::string(" Previsione n.\xB0") + "7 \xE8\r\n\r\n");
  EXPECT_EQ(testoRapporto(percorso("Esiti.txt")), " Previsione n.°7 è\n\n");
  EXPECT_EQ(failureDi([&] { return rapporto.riga(), 0; }), 52) << "it is closed";
}

TEST_F(Files, AReportKeepsItsLinesWhenAFailureUnwindsThroughIt) {
  std::string attese;
  const auto fallisce = [&]() -> int {
    FileRapporto rapporto(percorso("Stat.txt"));
    for (int n = 1; n <= 20000; ++n) {
      rapporto.riga("riga ", n);
      attese += "riga " + std::to_string(n) + "\r\n";
    }
    throw RuntimeFailure(Errore::Indice);
  };
  EXPECT_EQ(failureDi(fallisce), 9);
  EXPECT_EQ(p.contenuto("Stat.txt"), attese);
}

TEST_F(Files, MethodsAreListedByUpperCasedNameWithoutFoldersAndHiddenFiles) {
  for (const auto* nome :
       {"é.dat", "È.dat", "b.dat", "_.dat", "z.dat", "A.dat", ".nascosto.dat", "c", "ça.dat"})
    p.scrivi(std::string("Metodi/") + nome, "");
  fs::create_directory(percorso("Metodi/B cartella.dat"));
  EXPECT_THAT(elencaFile(percorso("Metodi")),
              ElementsAre("A.dat", "b.dat", "c", "z.dat", "_.dat", "ça.dat", "È.dat", "é.dat"));
  fs::remove_all(percorso("Metodi"));
  EXPECT_THAT(elencaFile(percorso("Metodi")), IsEmpty());
  p.scrivi("Metodi", "a file in its place");
  EXPECT_EQ(failureDi([&] { return elencaFile(percorso("Metodi")); }), 75);
}

}  // namespace
}  // namespace vaticlo::prova
