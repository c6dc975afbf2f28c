#include "sostegno/server_prova.h"

#include <array>
#include <cstdlib>
#include <vector>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vaticlo::prova {

ServerProva::ServerProva(Risposte risposte)
    : risposte_(std::move(risposte)), ascolto_(::socket(AF_INET, SOCK_STREAM, 0)) {
  ::setenv("no_proxy", "*", 1);
  sockaddr_in luogo{};
  luogo.sin_family = AF_INET;
  luogo.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t misura = sizeof luogo;
  ::bind(ascolto_, reinterpret_cast<sockaddr*>(&luogo), misura);
  ::listen(ascolto_, 8);
  ::getsockname(ascolto_, reinterpret_cast<sockaddr*>(&luogo), &misura);
  radice_ = "http://127.0.0.1:" + std::to_string(ntohs(luogo.sin_port));
  servizio_ = std::thread([this] { servi(); });
}

ServerProva::~ServerProva() {
  ::shutdown(ascolto_, SHUT_RDWR);
  servizio_.join();
  ::close(ascolto_);
}

void ServerProva::servi() {
  std::vector<int> silenziosi;
  for (int cliente = 0; (cliente = ::accept(ascolto_, nullptr, nullptr)) >= 0;) {
    std::array<char, 4096> domanda{};
    const auto letti = ::read(cliente, domanda.data(), domanda.size());
    const std::string testo(domanda.data(), letti > 0 ? static_cast<std::size_t>(letti) : 0);
    const auto inizio = testo.find(' ') + 1;
    const auto risposta = risposte_.find(testo.substr(inizio, testo.find(' ', inizio) - inizio));
    if (risposta == risposte_.end()) {
      silenziosi.push_back(cliente);
      continue;
    }
    const auto& ottetti = risposta->second;
    for (std::size_t via = 0; via < ottetti.size();) {
      const auto mandati = ::send(cliente, ottetti.data() + via, ottetti.size() - via, MSG_NOSIGNAL);
      if (mandati <= 0) break;
      via += static_cast<std::size_t>(mandati);
    }
    ::close(cliente);
  }
  for (const int cliente : silenziosi) ::close(cliente);
}

}  // namespace vaticlo::prova
