#pragma once

#include <string>

#include "program/programma.h"

namespace vaticlo {

/// The address of the server that offers the archive, as the program was built.
[[nodiscard]] std::string indirizzoArchivio();

/// Replaces the whole archive by the one at the address and says how it went. After a failure the
/// archive is as it was.
void aggiornaArchivio(Programma& programma, const std::string& indirizzo = indirizzoArchivio());

}  // namespace vaticlo
