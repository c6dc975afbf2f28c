#pragma once

#include <cstdlib>
#include <string>

#include <winsock2.h>
#include <ws2tcpip.h>

namespace vaticlo::prova {

using Presa = SOCKET;

// Nothing of the network works before.
inline const bool kRete = [] {
  WSADATA dati{};
  return ::WSAStartup(MAKEWORD(2, 2), &dati) == 0;
}();

inline bool aperta(Presa presa) { return presa != INVALID_SOCKET; }
/// Lets whoever waits for a client wait no longer.
inline void fermaAscolto(Presa presa) { ::closesocket(presa); }
inline void chiudi(Presa presa) { ::closesocket(presa); }
inline void spedisci(Presa a, const std::string& testo) {
  ::send(a, testo.data(), static_cast<int>(testo.size()), 0);
}
inline void ambiente(const char* nome, const char* valore) { ::_putenv_s(nome, valore); }

}  // namespace vaticlo::prova
