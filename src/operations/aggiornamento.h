#pragma once

#include <string>

#include "program/programma.h"

namespace vaticlo {

/// The address of the server that offers the archive, as the program was built.
[[nodiscard]] std::string indirizzoArchivio();

/// Replaces the whole archive by the one at the address and says how it went. False when it failed: the
/// archive is then as it was.
bool aggiornaArchivio(Programma& programma, const std::string& indirizzo = indirizzoArchivio());

}  // namespace vaticlo
