#pragma once

#include "methods/globals.h"
#include "platform/cartella.h"
#include "platform/servizi.h"

namespace vaticlo {

/// A running program: its folder, the public values and the services. main() makes one, each test makes its
/// own. It stands here because the public values hold a prediction; the archive below needs the folder alone.
struct Programma {
  Programma(std::filesystem::path radice, Servizi& s) : cartella(std::move(radice)), servizi(s) {}

  CartellaProgramma cartella;
  Servizi& servizi;
  Globals globals;
};

}  // namespace vaticlo
