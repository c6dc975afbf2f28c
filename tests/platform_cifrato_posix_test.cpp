#include <array>
#include <cstdio>
#include <cstdlib>

#include "platform/scaricamento.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

TEST(CifratoDownload, TrustsAServerByItsCertificateAlone) {
  const ProgrammaProva p;
  const auto in = "cd " + p.radice.string() + " && ";
  p.scrivi("risposta", "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: 5\r\n\r\nnuovo");
  ASSERT_EQ(
      std::system((in + "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -keyout chiave"
                        " -out certificato -subj /CN=prova -addext subjectAltName=IP:127.0.0.1 2>errori")
                      .c_str()),
      0);
  auto* cifrato = ::popen(
      (in + "openssl s_server -accept 127.0.0.1:0 -cert certificato -key chiave -HTTP -naccept 2 2>&1")
          .c_str(),
      "r");
  std::string indirizzo;
  std::array<char, 256> riga{};
  while (indirizzo.empty() && std::fgets(riga.data(), riga.size(), cifrato) != nullptr)
    if (const std::string detto = riga.data(); detto.starts_with("ACCEPT "))
      indirizzo = "https://" + detto.substr(7, detto.size() - 8) + "/risposta";
  LimitiScaricamento limiti;
  EXPECT_THAT(scaricaInMemoria(indirizzo).motivo, HasSubstr("non è sicuro"));
  limiti.certificati = p.radice / "certificato";
  EXPECT_EQ(scaricaInMemoria(indirizzo, 0, limiti).contenuto, "nuovo");
  while (std::fgets(riga.data(), riga.size(), cifrato) != nullptr) {
  }
  ::pclose(cifrato);
}

}  // namespace
}  // namespace vaticlo::prova
