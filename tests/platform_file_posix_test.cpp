#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/rapporto.h"
#include "sostegno/file_prova.h"
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

using PosixFiles = FileProva;

TEST_F(PosixFiles, ThatArePipesFail) {
  ASSERT_EQ(::mkfifo(percorso("tubo").c_str(), 0600), 0);
  EXPECT_EQ(failureDi([&] { return leggi("tubo"), 0; }), 75);
  EXPECT_EQ(failureDi([&] { return scrivi("tubo"), 0; }), 75);
}

TEST_F(PosixFiles, ThatMayNotBeWrittenAreReadAndNotReplaced) {
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

TEST_F(PosixFiles, KeepTheirPermissionsAndTheirLinks) {
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

TEST_F(PosixFiles, AreAsTheyWereWhenTheDiskIsFull) {
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
  EXPECT_FALSE(rapporto.concludi());
  ::setrlimit(RLIMIT_FSIZE, &disco);
}

}  // namespace
}  // namespace vaticlo::prova
