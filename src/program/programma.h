#pragma once

#include "platform/cartella.h"
#include "platform/servizi.h"
#include "program/globals.h"

namespace vaticlo {

/// A running program: its folder, the public values and the services. main() makes one, each test makes its
/// own.
struct Programma {
  Programma(std::filesystem::path radice, Servizi& s) : cartella(std::move(radice)), servizi(s) {}

  CartellaProgramma cartella;
  Servizi& servizi;
  Globals globals;
};

}  // namespace vaticlo
