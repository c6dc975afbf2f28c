#pragma once

#include <string>
#include <vector>

namespace vaticlo {

class frmPrincipale;
class Presenza;

/// Something that the main window says as long as it is so (Italian).
struct Avviso {
  std::string testo;
  std::string spiegazione;  ///< whole sentences: what follows from it, and what to do
  bool operator==(const Avviso&) const = default;
};

/// What no message says, as things are now: a statistics window that will count no method, another program
/// on the same folder, a folder or an archive that can't be written.
[[nodiscard]] std::vector<Avviso> avvisi(const frmPrincipale& principale, const Presenza& presenza);

}  // namespace vaticlo
