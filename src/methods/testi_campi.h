#pragma once

#include <stdexcept>
#include <string>

#include "archive/data.h"
#include "methods/metodo.h"

namespace vaticlo {

/// The fields of the prediction editor as the user types and reads them.
struct TestiPrevisione {
  std::string numero;  ///< "899.11.22.33"
  std::string ruote;   ///< "Ba-Ca-Tutte"
  std::string colpi;
  std::string ambate;  ///< "21;36"
  std::string ambi;    ///< "15-50;25-12;66-10"
  std::string sup;     ///< "15-50-66-71;25-12-10"
};

/// A save that is refused with a message of its own (Italian, as it is shown).
class RifiutoPrevisione : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes the draw and its date into a slot. Fails with Errore::Overflow for a year whose last two digits the
/// cells can't take. Meant: the century is year / 100 rounded, so 1999 fails and 2005 does not (guide: "Gli
/// anni prima del 2000").
void scriviEstrazione(FileMetodo& metodo, int slot, int estrazione, const Data& data);

/// Writes the fields into a slot: the whole telephone number, and the cells that the lists need; cells after
/// the end of a list stay as they are. Throws RifiutoPrevisione for an unknown wheel word and for ambi or
/// combinations beyond 180 cells; fails with Errore::TipoNonCorrispondente, Overflow or Indice for anything
/// else that the cells can't take.
void scriviTesti(FileMetodo& metodo, int slot, const TestiPrevisione& testi);

/// The fields of a slot as text, with all the numbers of a group. Fails with Errore::Indice when a list has
/// no end.
[[nodiscard]] TestiPrevisione leggiTesti(const FileMetodo& metodo, int slot);

}  // namespace vaticlo
