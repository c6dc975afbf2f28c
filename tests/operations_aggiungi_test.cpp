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

TEST(AddedDraws, AreNoneOfABadServer) {
  ProgrammaProva p;
  const ServerProva server({{"/accesso", risposta("\r\n<!DOCTYPE html><html>Entrate qui</html>")},
                            {"/errore", "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 0\r\n\r\n"},
                            {"/mozzo", "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n" + kNuova},
                            {"/sbagliato", risposta(kNuova + "2005/03/17\tBA\t1\t2\t3\t4\n")},
                            {"/rovinato", risposta("\x1F\x8Bxyz")},
                            {"/vuoto", risposta("")},
                            {"/uguale", "HTTP/1.1 304 Not Modified\r\nConnection: close\r\n\r\n"}});
  for (const auto& [percorso, detto] : {std::pair{"/accesso", "una pagina web"},
                                        {"/errore", "il codice 503"},
                                        {"/mozzo", "interrotta"},
                                        {"/sbagliato", "riga 2: attesa la forma"},
                                        {"/rovinato", "è rovinato"},
                                        {"/vuoto", "è vuoto"},
                                        {"/uguale", "il codice 304"}}) {
    p.servizi.messaggi.clear();
    EXPECT_FALSE(estrazioniDaInternet(p.programma, server.indirizzo(percorso)));
    EXPECT_THAT(p.servizi.detti(),
                ElementsAre(testing::AllOf(HasSubstr(detto), EndsWith("L'archivio è rimasto com'era."))));
  }
  EXPECT_FALSE(estrazioniDaInternet(p.programma, "http://127.0.0.1:1/"));
}

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
