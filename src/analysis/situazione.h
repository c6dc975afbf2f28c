#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/elenco_previsioni.h"
#include "analysis/quadro.h"
#include "archive/data.h"

namespace vaticlo {

/// What a player wants to know before anything else.
struct Situazione {
  struct Prevista {
    std::string metodo;
    VocePrevisione previsione;
    int colpiRimasti = 0;  ///< draws that it is still played on; 0 for one that has won
  };
  struct DaGuardare {
    std::string metodo;
    StatoMetodo stato = StatoMetodo::Regolare;
  };

  int estrazioni = 0;
  std::optional<Data>
      ultima;  ///< the date of the last draw; none without draws, and for cells that hold no date
  std::vector<Prevista> inGioco;         ///< those that end first come first
  std::vector<Prevista> vinteAllUltima;  ///< that won on the last draw
  std::vector<DaGuardare> daGuardare;    ///< what no run judges, or not whole
};

/// Reads the archive and the methods and judges them by the rules of the statistics. Writes no file and makes
/// none; an archive that is missing has no draws. Fails as ApriArchivio() and CaricaElencoMetodi() do.
[[nodiscard]] Situazione situazioneDi(const CartellaProgramma& cartella);

}  // namespace vaticlo
