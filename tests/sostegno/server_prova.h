#pragma once

#include <array>
#include <map>
#include <string>
#include <thread>

#include "rete.h"

namespace vaticlo::prova {

/// A web server on the loopback address that answers each request by its path with the bytes it was given,
/// heads included, and closes. A path without an answer gets none: the connection stays open and silent.
/// Who asks for what has changed since a time is answered by the path with " dopo" behind it.
class ServerProva {
 public:
  explicit ServerProva(std::map<std::string, std::string> risposte) : risposte_(std::move(risposte)) {
    ambiente("http_proxy", "http://127.0.0.1:1/");  // leads nowhere: nobody may ask it
    luogo_.sin_family = AF_INET;
    luogo_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t misura = sizeof luogo_;
    ::bind(ascolto_, reinterpret_cast<sockaddr*>(&luogo_), misura);
    ::listen(ascolto_, 8);
    ::getsockname(ascolto_, reinterpret_cast<sockaddr*>(&luogo_), &misura);
    servizio_ = std::thread([this] { servi(); });
  }
  ServerProva(const ServerProva&) = delete;
  ServerProva& operator=(const ServerProva&) = delete;
  ~ServerProva() {
    fermaAscolto(ascolto_);
    servizio_.join();
    chiudi(ascolto_);
  }

  [[nodiscard]] std::string indirizzo(const std::string& percorso) const {
    return "http://127.0.0.1:" + std::to_string(ntohs(luogo_.sin_port)) + percorso;
  }

 private:
  void servi() const {
    for (Presa cliente = 0; aperta(cliente = ::accept(ascolto_, nullptr, nullptr));) {
      std::array<char, 4096> domanda{};
      const auto letti = ::recv(cliente, domanda.data(), domanda.size(), 0);
      const std::string testo(domanda.data(), letti > 0 ? static_cast<std::size_t>(letti) : 0);
      const auto inizio = testo.find(' ') + 1;
      const auto percorso = testo.substr(inizio, testo.find(' ', inizio) - inizio);
      const bool dopo = testo.find("\r\nIf-Modified-Since: ") != std::string::npos;
      const auto risposta = risposte_.find(dopo ? percorso + " dopo" : percorso);
      if (risposta == risposte_.end()) continue;
      spedisci(cliente, risposta->second);
      chiudi(cliente);
    }
  }

  const std::map<std::string, std::string> risposte_;
  const Presa ascolto_ = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in luogo_{};
  std::thread servizio_;
};

}  // namespace vaticlo::prova
