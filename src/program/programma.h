#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/cartella.h"
#include "platform/servizi.h"
#include "program/globals.h"

namespace vaticlo {

/// What an address held when it was fetched, kept in memory so that it is fetched again only when it changes.
struct PaginaTenuta {
  std::string indirizzo;
  std::int64_t modificato = 0;  ///< seconds since 1970; 0 when it is not known
  std::string contenuto;
};

/// A running program: its folder, the public values and the services. main() makes one, each test makes its
/// own.
struct Programma {
  Programma(std::filesystem::path radice, Servizi& s) : cartella(std::move(radice)), servizi(s) {}

  CartellaProgramma cartella;
  Servizi& servizi;
  Globals globals;
  PaginaTenuta storico = {};  ///< the public text of draws, as it was fetched last
};

}  // namespace vaticlo
