#include <gmock/gmock.h>

#include "methods/cartella_metodi.h"
#include "platform/scaricamento.h"
#include "sostegno/cartella_prova.h"
#include "sostegno/server_prova.h"

namespace vaticlo {
namespace {

namespace fs = std::filesystem;

std::string risposta(const std::string& stato, const std::string& testo, const std::string& testa = "") {
  return "HTTP/1.1 " + stato + "\r\nConnection: close\r\n" + testa +
         "Content-Length: " + std::to_string(testo.size()) + "\r\n\r\n" + testo;
}

std::string rinvio(const std::string& luogo) {
  return risposta("302 Found", "altrove", "Location: " + luogo + "\r\n");
}

const std::string kPezzo = "1f4\r\n" + std::string(500, 'x') + "\r\n";
const std::string kTesta = "X: " + std::string(1000, 'x') + "\r\n";
const std::string kAPezzi = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + kPezzo;

class Download : public testing::Test {
 protected:
  /// Whether the download succeeded; whatever it did not bring has left the destination as it was.
  bool scarica(const std::string& indirizzo, const std::string& nuovo = "") {
    p.scrivi("archivio", kVecchio);
    LimitiScaricamento limiti;
    limiti.ottetti = 1000;
    limiti.silenzio = std::chrono::seconds(1);
    const bool riuscito = scaricaInFile(indirizzo, p.radice / "archivio", limiti);
    EXPECT_EQ(p.contenuto("archivio"), riuscito ? nuovo : kVecchio) << indirizzo;
    EXPECT_EQ(nellaCartella(), 2) << "Metodi and the destination, nothing beside them";
    return riuscito;
  }
  [[nodiscard]] std::ptrdiff_t nellaCartella() const {
    return std::distance(fs::directory_iterator(p.radice), {});
  }
  static constexpr const char* kVecchio = "vecchio e lungo";
  prova::ProgrammaProva p;
  const std::string segreto = "file://" + (cartellaMetodi(p.cartella()) / "M.dat").string();
  const prova::ServerProva server{{{"/breve", risposta("200 OK", "nuovo")},
                                   {"/lungo", risposta("203 Non-Authoritative", std::string(900, 'x'))},
                                   {"/rinvio", rinvio("/rinvio2")},
                                   {"/rinvio2", rinvio("/breve")},
                                   {"/muto", ""},
                                   {"/mozzo", "HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\nsolo un pezzo"},
                                   {"/pezzi", kAPezzi},
                                   {"/manca", risposta("404 Not Found", "manca")},
                                   {"/uguale", "HTTP/1.1 304 Not Modified\r\nConnection: close\r\n\r\n"},
                                   {"/scelta", risposta("300 Multiple Choices", "quale?")},
                                   {"/niente", "HTTP/1.1 204 No Content\r\nConnection: close\r\n\r\n"},
                                   {"/troppi", risposta("200 OK", std::string(1001, 'x'))},
                                   {"/troppi-pezzi", kAPezzi + kPezzo + kPezzo + "0\r\n\r\n"},
                                   {"/testa", risposta("200 OK", "nuovo", kTesta)},
                                   {"/coda", kAPezzi + "0\r\n" + kTesta + "\r\n"},
                                   {"/segreto", rinvio(segreto)},
                                   {"/giro", rinvio("/giro")}}};
};

TEST_F(Download, ReplacesTheDestinationAfterACompleteAndGoodTransfer) {
  EXPECT_TRUE(scarica(server.indirizzo("/breve"), "nuovo"));
  EXPECT_TRUE(scarica(server.indirizzo("/lungo"), std::string(900, 'x')));
  EXPECT_TRUE(scarica(server.indirizzo("/rinvio"), "nuovo"));
}

TEST_F(Download, LeavesTheDestinationWhenAnythingGoesWrong) {
  p.scrivi("Metodi/M.dat", "segreto");
  for (const char* percorso :
       {"/muto", "/mozzo", "/pezzi", "/manca", "/uguale", "/scelta", "/niente", "/troppi", "/troppi-pezzi",
        "/testa", "/coda", "/segreto", "/giro", "/senza-risposta"})
    EXPECT_FALSE(scarica(server.indirizzo(percorso)));
  for (const auto& indirizzo : {segreto, std::string("http://127.0.0.1:1/"), std::string("non un indirizzo")})
    EXPECT_FALSE(scarica(indirizzo));
}

TEST_F(Download, FollowsARedirectionToTheWebAlone) {
  sockaddr_in luogo{};
  luogo.sin_family = AF_INET;
  luogo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t misura = sizeof luogo;
  const prova::Presa porta = ::socket(AF_INET, SOCK_STREAM, 0);
  ::bind(porta, reinterpret_cast<sockaddr*>(&luogo), misura);
  ::listen(porta, 1);
  ::getsockname(porta, reinterpret_cast<sockaddr*>(&luogo), &misura);
  const prova::ServerProva rinviante(
      {{"/", rinvio("ftp://127.0.0.1:" + std::to_string(ntohs(luogo.sin_port)) + "/archivio")}});
  EXPECT_FALSE(scarica(rinviante.indirizzo("/")));
  fd_set bussano;
  FD_ZERO(&bussano);
  FD_SET(porta, &bussano);
  timeval subito{};
  EXPECT_EQ(::select(static_cast<int>(porta) + 1, &bussano, nullptr, nullptr, &subito), 0)
      << "nobody knocked at the other server";
  prova::chiudi(porta);
}

TEST_F(Download, LeavesNothingBesideADestinationThatRefuses) {
  EXPECT_FALSE(scaricaInFile(server.indirizzo("/breve"), cartellaMetodi(p.cartella())));
  EXPECT_EQ(nellaCartella(), 1);
}

}  // namespace
}  // namespace vaticlo
