#include <array>
#include <cstdlib>
#include <thread>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "platform/scaricamento.h"
#include "sostegno/cartella_prova.h"

namespace vaticlo {
namespace {

namespace fs = std::filesystem;

/// A web server on this machine that gives one answer to one request.
struct UnaRisposta {
  explicit UnaRisposta(const std::string& risposta) {
    ::listen(ascolto, 1);  // on a free port
    sockaddr_in luogo{};
    socklen_t misura = sizeof luogo;
    ::getsockname(ascolto, reinterpret_cast<sockaddr*>(&luogo), &misura);
    indirizzo = "http://127.0.0.1:" + std::to_string(ntohs(luogo.sin_port)) + "/archivio";
    servizio = std::thread([this, risposta] {
      const int cliente = ::accept(ascolto, nullptr, nullptr);
      std::array<char, 4096> domanda{};
      if (::read(cliente, domanda.data(), domanda.size()) > 0 && !risposta.empty())
        static_cast<void>(::send(cliente, risposta.data(), risposta.size(), MSG_NOSIGNAL));
      ::close(cliente);
    });
  }
  UnaRisposta(const UnaRisposta&) = delete;
  UnaRisposta& operator=(const UnaRisposta&) = delete;
  ~UnaRisposta() {
    ::shutdown(ascolto, SHUT_RDWR);  // when nobody came
    servizio.join();
    ::close(ascolto);
  }
  int ascolto = ::socket(AF_INET, SOCK_STREAM, 0);
  std::string indirizzo;
  std::thread servizio;
};

TEST(Download, ReplacesTheDestinationOnlyAfterACompleteAndGoodTransfer) {
  ::setenv("no_proxy", "*", 1);
  const prova::ProgrammaProva p;
  p.scrivi("segreto", "of this machine");
  const auto segreto = "file://" + (p.cartella().radice() / "segreto").string();
  const std::pair<std::string, std::string> casi[] = {
      {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nnuovo", "nuovo"},
      {"HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\nmozzo", "vecchio e lungo"},
      {"HTTP/1.1 404 Not Found\r\nContent-Length: 5\r\n\r\nmanca", "vecchio e lungo"},
      {"HTTP/1.1 302 Found\r\nLocation: " + segreto + "\r\nContent-Length: 0\r\n\r\n", "vecchio e lungo"},
      {"", "vecchio e lungo"}};
  for (const auto& [risposta, contenuto] : casi) {
    p.scrivi("archivio", "vecchio e lungo");
    const UnaRisposta server(risposta);
    EXPECT_EQ(scaricaInFile(server.indirizzo, p.cartella().radice() / "archivio"), contenuto == "nuovo");
    EXPECT_EQ(p.contenuto("archivio"), contenuto) << risposta;
  }
}

TEST(Download, LeavesNothingBesideADestinationThatRefuses) {
  const prova::ProgrammaProva p;
  const auto radice = p.cartella().radice();
  p.scrivi("origine", "dati");
  const auto origine = "file://" + (radice / "origine").string();
  EXPECT_FALSE(scaricaInFile(origine, radice / "Metodi"));
  EXPECT_EQ(std::distance(fs::directory_iterator(radice), {}), 2);  // Metodi and origine, as before
  EXPECT_TRUE(scaricaInFile(origine, radice / "copia"));
  EXPECT_EQ(p.contenuto("copia"), "dati");
}

}  // namespace
}  // namespace vaticlo
