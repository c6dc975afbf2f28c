#pragma once

#include <cstdlib>
#include <string>

#include <arpa/inet.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vaticlo::prova {

using Presa = int;

inline bool aperta(Presa presa) { return presa >= 0; }
/// Lets whoever waits for a client wait no longer.
inline void fermaAscolto(Presa presa) { ::shutdown(presa, SHUT_RDWR); }
inline void chiudi(Presa presa) { ::close(presa); }
inline void spedisci(Presa a, const std::string& testo) {
  ::send(a, testo.data(), testo.size(), MSG_NOSIGNAL);
}
inline void ambiente(const char* nome, const char* valore) { ::setenv(nome, valore, 1); }

}  // namespace vaticlo::prova
