#pragma once

#include <map>
#include <string>
#include <thread>

namespace vaticlo::prova {

/// A web server on the loopback address that answers each request by its path with the bytes it was given,
/// heads included, and closes. A path without an answer gets none: the connection stays open and silent.
class ServerProva {
 public:
  using Risposte = std::map<std::string, std::string>;
  explicit ServerProva(Risposte risposte);
  ServerProva(const ServerProva&) = delete;
  ServerProva& operator=(const ServerProva&) = delete;
  ~ServerProva();

  [[nodiscard]] std::string indirizzo(const std::string& percorso) const { return radice_ + percorso; }

 private:
  void servi();

  Risposte risposte_;
  int ascolto_;
  std::string radice_;
  std::thread servizio_;
};

}  // namespace vaticlo::prova
