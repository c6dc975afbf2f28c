#pragma once

#include <string>
#include <vector>

#include "platform/cartella.h"

namespace vaticlo {

/// Which methods an operation looks at: all of the folder ("Tutti") or the one named ("Scegli").
struct SceltaMetodo {
  bool tutti = true;
  std::string nome;
  bool operator==(const SceltaMetodo&) const = default;
};

/// What the listing does with a file whose name has no ".dat" in it.
enum class NomeSenzaDat {
  Failure,    ///< Errore::ArgomentoNonValido, at once
  VoceVuota,  ///< its entry stays empty and the listing goes on
};

/// The list of methods of a run: with "Tutti" the names of the files, each up to the first ".dat" (case
/// matters), in the order of the folder; with "Scegli" the one name as it stands. Fails with
/// Errore::ArgomentoNonValido (see above) or AccessoAlFile.
[[nodiscard]] std::vector<std::string> CaricaElencoMetodi(const CartellaProgramma& cartella,
                                                          const SceltaMetodo& scelta,
                                                          NomeSenzaDat senzaDat = NomeSenzaDat::Failure);

/// The same for an operation that no stranger in the folder stops: a file that is no method is left out.
[[nodiscard]] std::vector<std::string> metodiDaGiudicare(const CartellaProgramma& cartella,
                                                         const SceltaMetodo& scelta);

/// The names that the selection lists offer: "Metodo 1" and "Metodo 2", then every other method of the
/// folder. A folder that can't be read adds none.
[[nodiscard]] std::vector<std::string> metodiOfferti(const CartellaProgramma& cartella);

}  // namespace vaticlo
