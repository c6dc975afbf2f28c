#include "archive/data.h"
#include "console/parole.h"
#include "console/sessione.h"
#include "sostegno/logica.h"
#include "sostegno/server_prova.h"

namespace vaticlo::prova {
namespace {

TEST(Parole, AreQuotedAsInAShell) {
  // A line, and its words in brackets; "!" for a line that has an end missing.
  const std::pair<std::string, std::string> casi[] = {
      {"  # trova 1", ""},
      {"trova  1\t2\r", "[trova][1][2]"},
      {"'' x'y  z'\"a b\"", "[][xy  za b]"},
      {"a\\ b \\\"", "[a b][\"]"},
      {R"("a\"b\\c\d" '\')", R"([a"b\c\d][\])"},
      {"'a", "!"},
      {"\"a\\\"", "!"},
      {"a \\", "!"},
  };
  for (const auto& [riga, attese] : casi) {
    std::string trovate;
    const auto parole = paroleDellaRiga(riga);
    for (const auto& parola : parole.value_or(std::vector<std::string>{})) trovate += "[" + parola + "]";
    EXPECT_EQ(parole ? trovate : "!", attese) << riga;
  }
}

class Console : public testing::Test {
 protected:
  /// Runs a command line in the folder of the test and keeps what it says.
  int esegui(const std::string& riga) {
    auto parole = paroleDellaRiga(riga).value();
    parole.insert(parole.begin(), {"--cartella", p.radice.string()});
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int stato = sessione.esegui(parole);
    detto = testing::internal::GetCapturedStdout();
    errori = testing::internal::GetCapturedStderr();
    return stato;
  }
  int eseguiFile(const std::string& comandi) {
    p.scrivi("comandi.txt", comandi);
    return esegui("esegui " + (p.radice / "comandi.txt").string());
  }
  ProgrammaProva p;
  Sessione sessione;
  std::string detto, errori;
};

TEST_F(Console, EachCommandSaysHowItWent) {
  std::string numeri, vuote, zeri;
  for (int n = 1; n <= 55; ++n) numeri += " " + std::to_string(n);
  for (const std::string sigla : {"Ca", "Fi", "Ge", "Mi", "Na", "Pa", "Ro", "To", "Ve"}) {
    vuote += sigla + " 0 0 0 0 0\n";
    zeri += sigla + " 0* 0* 0* 0* 0* 0* 0* 0* 0* 0*\n";
  }
  const std::string riga = "2005/01/08\tBA\t1\t2\t3\t4\t5\r\n", mio = " 'Il mio' ";
  const ServerProva server({{"/uno", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nuno"},
                            {"/due", "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"}});
  p.scrivi("uno.txt", riga);
  p.scrivi("due.txt", riga + riga);
  const std::string salvata = "[Vaticlo] La previsione è stata salvata!\n";
  // The command, its status, all that it says, a part of what it says of an error.
  const std::tuple<std::string, int, std::string, std::string> casi[] = {
      {"nulla", 2, "", "nulla"},
      {"importa " + (p.radice / "due.txt").string(), 2, "", "riga 2"},
      {"aggiorna --da " + server.indirizzo("/due"), 3,
       "[Vaticlo] Errore: Non è possibile effettuare l'aggiornamento\n", ""},
      {"estrazione 2", 0, "Estrazione n° 2 del 12/3/2005\nBa 1 2 4 8 16\n" + vuote + "Naz 7 0 0 0 0\n", ""},
      {"somdif 2 --tipo somma", 0, "Ba 3 5 9 17 6 10 18 12 20 24\n" + zeri, ""},
      {"estrazione -1", 1, "", "Errore di run-time 9: "},
      {"estrazione 1,5", 2, "", "1,5"},
      {"trova ''", 0, "", ""},
      {"inserisci 16/03/2005" + numeri, 0, "Salvata l'estrazione n° 4\n", ""},
      {"inserisci 16/03/2005 1 2", 2, "", "NUMERI"},
      {"inserisci 16-3" + numeri, 2, "", "16-3"},
      {"modifica 4" + numeri, 0, "Salvata l'estrazione n° 4\n", ""},
      {"cancella 4", 0, "Cancellata l'estrazione n° 4\n", ""},
      {"trova -5", 3, "[Attenzione] Inserisci un valore corretto compreso tra 1 e 3.\n", ""},
      {"metodo crea" + mio, 0, "Creato il metodo Il mio\n", ""},
      {"previsione inserisci" + mio + "--estrazione 2 --ruote Ba-Naz --ambate 7 --numero 899.12", 0, salvata,
       ""},
      {"previsione modifica" + mio + "1 --ambate 8 --ambi 1-2 --colpi 1", 0, salvata, ""},
      {"previsione elenco" + mio, 0, "Previsione n.1 del 12/03//2005\n", ""},
      {"previsione mostra" + mio + "1", 0,
       "Estrazione: 2\nNumero 899: 899.12\nRuote: Ba-Naz\nColpi: 1\nAmbate: 8\nAmbi: 1-2\nSorti: \n", ""},
      {"previsione mostra" + mio + "2", 2, "", "previsione 2"},
      {"verifica 2", 0,
       " Previsione n.°1\n Metodo: Il mio\n Numero di Telefono di previsione: 899.12\n Ruote: Ba-Naz\n"
       " Ambate: 8\n Ambi Secchi: 1-2\n\n Esito:\n In gioco\n___________________________________\n"
       "Giocabili: 1\nVincenti: 0\nIn gioco: 1\n",
       ""},
      {"verifica 2 --metodo Altro", 0, "Giocabili: 0\nVincenti: 0\nIn gioco: 0\n", ""},
      {"in-gioco", 0, "Non ci sono previsioni in gioco\n", ""},
      {"vincenti --ultime 6", 2, "", "non 6"},
      {"importa " + (p.radice / "uno.txt").string(), 0, "Importate 1 estrazioni, dal 8/1/2005 al 8/1/2005\n",
       ""},
      {"aggiorna --da " + server.indirizzo("/uno"), 0, "[Vaticlo] Aggiornamento avvenuto\n", ""}};
  archivioDi(3, "2 Ba 1 2 4 8 16,2 Naz 7").scrivi(p);
  for (const auto& [comando, stato, atteso, errore] : casi) {
    EXPECT_EQ(esegui(comando), stato) << comando;
    EXPECT_EQ(detto, atteso) << comando;
    EXPECT_THAT(errori, HasSubstr(errore)) << comando;
    EXPECT_EQ(errori.empty(), errore.empty()) << comando;
  }
}

TEST_F(Console, AFileOfCommandsIsOneProcess) {
  archivioDi(110, "102 Ba 5 6").scrivi(p);
  scriviMetodoProva(p, "M", {{.estrazione = 101, .ruote = {1, 12}, .ambi = {5, 6, 99}}});
  const std::string due = "# nota\n\nstatistica 101 102\r\nstatistica 101 102\n";
  EXPECT_EQ(eseguiFile(due + "trova 1\nstatistica 101 102 --metodo X\nestrazione 15001\nmetodo crea Mai\n"),
            1);
  for (const char* testo :
       {"a tutte: 1 (50%)", "a tutte: 2 (66,7%)", "a tutte: 2 (100%)", "[Attenzione] Inserisci un valore"})
    EXPECT_THAT(detto, HasSubstr(testo));
  for (const char* seconda : {"metodo nulla\nmetodo crea Mai\n", "'metodo crea Mai\n"}) {
    EXPECT_EQ(eseguiFile(std::string("metodo elenco\n") + seconda), 2);
    EXPECT_THAT(errori, HasSubstr("riga 2"));
  }
  EXPECT_FALSE(p.esiste("Metodi/Mai.dat"));
  EXPECT_EQ(eseguiFile("trova 1\nmetodo elenco"), 0);
  EXPECT_EQ(eseguiFile("metodo elenco\ntrova 1"), 3);
}

TEST_F(Console, TheDemonstrationHasPredictionsThatWonThatLostAndInPlay) {
  EXPECT_EQ(esegui("dimostrazione"), 0);
  const auto archivio = ApriArchivio(p.cartella());
  const int ultima = archivio.PrimoIndiceLibero() - 1;
  for (int i = 1; i <= ultima; ++i) {
    const std::chrono::weekday giorno(dataDaTesto(archivio.DataEstrazione(i)).value());
    EXPECT_TRUE(giorno == std::chrono::Tuesday || giorno.iso_encoding() - 4 < 3) << "Thursday to Saturday";
  }
  EXPECT_EQ(esegui("statistica 1 " + std::to_string(ultima)), 0);
  const auto& g = sessione.programma().globals;
  EXPECT_TRUE(g.ContaVincenti > 0 && g.ContaInGioco > 0);
  EXPECT_GT(g.ContaGiocabili, g.ContaVincenti + g.ContaInGioco);
  const auto prima = p.contenuto("archivion71.dat") + p.contenuto("Metodi/Metodo 1.dat");
  EXPECT_EQ(esegui("dimostrazione"), 3);
  EXPECT_TRUE(p.contenuto("archivion71.dat") + p.contenuto("Metodi/Metodo 1.dat") == prima);
}

}  // namespace
}  // namespace vaticlo::prova
