#include "analysis/ruote_estratte.h"

#include "archive/ruota.h"

namespace vaticlo {

RuoteEstratte ruoteEstratte(const ArchivioEstrazioni& archivio) {
  RuoteEstratte estratte(static_cast<std::size_t>(archivio.PrimoIndiceLibero()));
  for (std::size_t d = 1; d < estratte.size(); ++d)
    for (int ruota = 1; ruota <= kRuote; ++ruota)
      for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k)
        if (archivio(static_cast<int>(d), ruota, k) != 0)
          estratte[d] |= static_cast<std::uint16_t>(1U << ruota);
  return estratte;
}

}  // namespace vaticlo
