#pragma once

#include <cstdint>
#include <string>

namespace vaticlo {

/// How a download into memory ended.
struct Scaricato {
  enum class Esito {
    Arrivato,
    Immutato,  ///< it has not changed since the time that was given; nothing was sent
    Fallito,
  };
  Esito esito = Esito::Fallito;
  std::string contenuto = {};
  std::int64_t modificato = 0;  ///< when it was changed last, in seconds since 1970; 0 when it is not known
  std::string motivo = {};      ///< why it failed (Italian)
};

}  // namespace vaticlo
