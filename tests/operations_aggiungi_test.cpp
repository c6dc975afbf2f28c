#include "operations/aggiungi_estrazioni.h"
#include "operations/importa_estrazioni.h"
#include "sostegno/logica.h"
#include "sostegno/server_prova.h"

namespace vaticlo::prova {
namespace {

const std::string kNuova = "2005/03/15\tBA\t1\t2\t3\t4\t5\n";
constexpr const char* kModificato = "Last-Modified: Sun, 06 Nov 2005 08:49:37 GMT\r\n";

std::string risposta(const std::string& testo, const std::string& testa = "") {
  return "HTTP/1.1 200 OK\r\nConnection: close\r\n" + testa +
         "Content-Length: " + std::to_string(testo.size()) + "\r\n\r\n" + testo;
}

TEST(AddedDraws, AreFetchedAgainOnlyWhenTheyHaveChanged) {
  ProgrammaProva p;
  const ServerProva server({{"/", risposta(kNuova, kModificato)},
                            {"/ dopo", "HTTP/1.1 304 Not Modified\r\nConnection: close\r\n\r\n"},
                            {"/altro", risposta(kNuova + "2005/03/17\tBA\t1\t2\t3\t4\t5\n")}});
  for (const auto& [percorso, quante] : {std::pair{"/", 1}, {"/", 1}, {"/altro", 2}, {"/", 1}}) {
    const auto testo = estrazioniDaInternet(p.programma, server.indirizzo(percorso));
    ASSERT_TRUE(testo) << percorso;
    EXPECT_EQ(testo->PrimoIndiceLibero() - 1, quante);
  }
}

struct Cattivo {
  const char* nome;
  std::string risposta, detto;  ///< by the server, and by the program of it
};

void PrintTo(const Cattivo& caso, std::ostream* dove) { *dove << caso.nome; }

class BadServer : public testing::TestWithParam<Cattivo> {};

TEST_P(BadServer, GivesNoDraws) {
  ProgrammaProva p;
  const ServerProva server({{"/", GetParam().risposta}});
  EXPECT_FALSE(estrazioniDaInternet(p.programma, server.indirizzo("/")));
  EXPECT_THAT(p.servizi.detti(), ElementsAre(testing::AllOf(HasSubstr(GetParam().detto),
                                                            EndsWith("L'archivio è rimasto com'era."))));
}

const Cattivo kBadServer[] = {
    {"login_page", risposta("\r\n<!DOCTYPE html><html>Entrate qui</html>"), "una pagina web"},
    {"unavailable", "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 0\r\n\r\n", "il codice 503"},
    {"cut_short", "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n" + kNuova, "interrotta"},
    {"wrong_line", risposta(kNuova + "2005/03/17\tBA\t1\t2\t3\t4\n"), "riga 2: attesa la forma"},
    {"damaged_gzip", risposta("\x1F\x8Bxyz"), "è rovinato"},
    {"nothing", risposta(""), "è vuoto"},
    {"unchanged_though_new", "HTTP/1.1 304 Not Modified\r\nConnection: close\r\n\r\n", "il codice 304"}};

INSTANTIATE_TEST_SUITE_P(, BadServer, testing::ValuesIn(kBadServer), perNome);

TEST(AddedDraws, AreComparedAgainWhenTheArchiveHasChangedMeanwhile) {
  ProgrammaProva p;
  archivioDi(2).scrivi(p);
  auto aggiunta = AggiuntaEstrazioni::prepara(p.programma, estrazioniDa(kNuova));
  ASSERT_TRUE(aggiunta);
  EXPECT_EQ(riassunto(aggiunta->anteprima()), "1 estrazioni, dal 15/3/2005 al 15/3/2005");
  archivioDi(3).scrivi(p);
  EXPECT_FALSE(aggiunta->scrivi());
  EXPECT_THAT(p.servizi.detti(), ElementsAre(HasSubstr("l'archivio è cambiato")));
  EXPECT_EQ(ApriArchivio(p.cartella()).PrimoIndiceLibero(), 4);
  EXPECT_TRUE(aggiunta->scrivi());
  EXPECT_EQ(ApriArchivio(p.cartella()).DataEstrazione(4), "15/3/2005");
}

}  // namespace
}  // namespace vaticlo::prova
