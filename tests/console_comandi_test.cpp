#include <algorithm>
#include <future>
#include <map>
#include <regex>

#include "archive/data.h"
#include "console/comandi/comandi.h"
#include "console/uscita.h"
#include "platform/blocco.h"
#include "sostegno/console_prova.h"
#include "sostegno/server_prova.h"

namespace vaticlo::prova {
namespace {

TEST_F(Console, WritesObjectsWithTheNamesThatTheTableDocuments) {
  archivioDi(3, "2 Ba 1 2 4 8 16").scrivi(p);
  scriviMetodoProva(p, "Mio", {{.estrazione = 2, .ruote = {1}, .ambate = {8}}});
  p.scrivi("diversa.txt", "2005/03/12\tBA\t1\t2\t4\t8\t17\n2005/03/15\tNA\t1\t2\t3\t4\t5\n");
  const std::map<std::string, std::string> argomenti = {{"importa", "@/diversa.txt"},
                                                        {"aggiungi", "@/diversa.txt"},
                                                        {"estrazione", "2"},
                                                        {"trova", "2"},
                                                        {"somdif", "2"},
                                                        {"previsione elenco", "Mio"},
                                                        {"previsione mostra", "Mio 1"},
                                                        {"verifica", "2"},
                                                        {"statistica", "1 2"},
                                                        {"caso", "1 3 --prove 5"},
                                                        {"ritardi", "Ba"}};
  auto tavola = tavolaComandi();
  std::rotate(tavola.begin(), tavola.begin() + 1,
              tavola.end());  // the import replaces what the others look at
  for (const auto& comando : tavola) {
    if (comando.json.empty()) continue;
    SCOPED_TRACE(comando.nome);
    const auto posto = argomenti.find(comando.nome);
    esegui(comando.nome + " " + (posto == argomenti.end() ? "" : posto->second) + " --json");
    const auto oggetto = Json::parse(detto);
    auto documentato = comando.json.begin();
    ASSERT_EQ(oggetto.size(), comando.json.size());
    for (const auto& [nome, valore] : oggetto.items()) {
      EXPECT_EQ(nome, documentato->nome);
      const bool aRighe = valore.is_array() && !valore.empty() && valore.front().is_object();
      const auto riga = aRighe ? valore.front() : Json::object();
      for (const auto& [campo, testo] : riga.items())
        EXPECT_TRUE(std::regex_search(documentato->aiuto, std::regex("\\b" + campo + "\\b"))) << campo;
      ++documentato;
    }
  }
}

/// An output that looks, when it is given a text, whether another program could take the folder.
struct UscitaCheGuarda : std::streambuf {
  explicit UscitaCheGuarda(std::filesystem::path radice) : cartella(std::move(radice)) {}
  std::streamsize xsputn(const char_type* /*testo*/, std::streamsize n) override {
    const auto prendi = [this] { return BloccoCartella(cartella, std::chrono::milliseconds(0)), 0; };
    // As far as the system knows, another thread is another program.
    libera += std::async(std::launch::async, [&] { return failureDi(prendi); }).get() == 0 ? '1' : '0';
    return n;
  }
  std::filesystem::path cartella;
  std::string libera;
};

TEST_F(Console, HoldsTheFolderNeverWhileItPrints) {
  archivioDi(3).scrivi(p);
  scriviMetodoProva(p, "M", {{.estrazione = 2, .ruote = {1}, .ambate = {8}}});
  p.scrivi("nuove.txt", "2005/03/15\tNA\t1\t2\t3\t4\t5\n");
  for (const auto* comando : {"aggiungi @/nuove.txt", "modifica 1 NUMERI", "cancella 1", "cancella 9",
                              "previsione modifica M 1 --ambi 1-2", "inserisci 14/03/2026 NUMERI",
                              "metodo crea Nuovo", "previsione togli M 1"}) {
    UscitaCheGuarda uscita(p.radice);
    auto *cout = std::cout.rdbuf(&uscita), *cerr = std::cerr.rdbuf(&uscita);
    esegui(comando);
    std::cout.rdbuf(cout);
    std::cerr.rdbuf(cerr);
    EXPECT_THAT(uscita.libera, testing::MatchesRegex("1+")) << comando;
  }
}

TEST_F(Console, TellsASuccessfulUpdateFromARefusedOne) {
  const ServerProva server({{"/uno", "HTTP/1.1 200 OK\r\nContent-Length: 3\r\n\r\nuno"},
                            {"/due", "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"}});
  EXPECT_EQ(esegui("aggiorna --da " + server.indirizzo("/due")), 3);
  EXPECT_EQ(detto, "[Vaticlo] Errore: Non è possibile effettuare l'aggiornamento\n");
  EXPECT_EQ(esegui("aggiorna --da " + server.indirizzo("/uno")), 0);
  EXPECT_EQ(detto, "[Vaticlo] Aggiornamento avvenuto\n");
}

TEST_F(Console, NamesTheMethodsThatNoRunCanJudge) {
  archivioDi(3).scrivi(p);
  scriviMetodoProva(p, "Pieno", std::vector<SlotProva>(10, {.estrazione = 2}));
  p.scrivi("Metodi/senza", "");
  for (const char* comando : {"verifica 2", "statistica 1 3", "in-gioco", "vincenti"}) {
    EXPECT_EQ(esegui(comando), std::string(comando).find(' ') == std::string::npos ? 1 : 0);
    EXPECT_THAT(errori, HasSubstr("\"Pieno\" non si può giudicare: contiene dieci previsioni"));
    EXPECT_THAT(errori, HasSubstr("\"senza\" non si può giudicare"));
  }
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
}

}  // namespace
}  // namespace vaticlo::prova
