#pragma once

#include <functional>
#include <string>

#include "program/programma.h"

namespace vaticlo {

/// Why an operation is refused, as it is shown.
struct Rifiuto {
  std::string testo;
};

/// Reads, changes and writes as one step between programs. A Rifiuto that `passo` throws is shown to the
/// user, and the result is false. Fails with Errore::CartellaOccupata when another program holds the folder,
/// and as `passo` does.
bool inUnPasso(Programma& programma, const std::function<void()>& passo);

/// Throws a Rifiuto when there is no such method.
void richiediMetodo(const Programma& programma, const std::string& nome);

}  // namespace vaticlo
