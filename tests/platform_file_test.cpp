#include <future>
#include <thread>

#include "platform/blocco.h"
#include "platform/rapporto.h"
#include "sostegno/file_prova.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

namespace fs = std::filesystem;

using Files = FileProva;

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
  for (const auto* nome : {"Metodi", "manca/x"}) {
    const int numero = nome == std::string("manca/x") ? 76 : 75;
    EXPECT_EQ(failureDi([&] { return leggi(nome), 0; }), numero) << nome;
    EXPECT_EQ(failureDi([&] { return scrivi(nome), 0; }), numero) << nome;
  }
  EXPECT_EQ(failureDi([&] { return contenutoFile(percorso("manca")); }), 53);
  EXPECT_EQ(failureDi([&] { return FileRapporto(percorso("manca/Stat.txt")), 0; }), 76);
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

// As far as the system knows, another thread is another program.
TEST_F(Files, AFolderIsHeldByOneProgramAtATime) {
  const auto altrove = [&] {
    const auto prendi = [&] { return BloccoCartella(p.radice, std::chrono::milliseconds(0)), 0; };
    return std::async(std::launch::async, [&] { return failureDi(prendi); }).get();
  };
  {
    const BloccoCartella mio(p.radice), ancora(p.radice / "Metodi" / "..");
    EXPECT_EQ(altrove(), 70);
    scrivi("dati");
    EXPECT_EQ(altrove(), 70);
  }
  EXPECT_EQ(altrove(), 0);
  std::promise<void> preso, lascia;
  std::thread altro([&] {
    const BloccoCartella suo(p.radice);
    preso.set_value();
    lascia.get_future().wait();
  });
  preso.get_future().wait();
  EXPECT_EQ(altrove(), 70);
  lascia.set_value();
  scrivi("dati");
  altro.join();
}

TEST_F(Files, AReportHasItsLinesInTheCodePageEndedByCrLf) {
  p.scrivi("Esiti.txt", "the report of an earlier run");
  FileRapporto rapporto(percorso("Esiti.txt"));
  EXPECT_EQ(p.contenuto("Esiti.txt"), "");
  rapporto.riga(" Previsione n.°", 7, " è");
  rapporto.riga();
  EXPECT_TRUE(rapporto.concludi());
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
