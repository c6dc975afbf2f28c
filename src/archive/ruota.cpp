#include "archive/ruota.h"

namespace vaticlo {

std::string_view SiglaRuota(int ruota) {
  if (ruota < 1 || ruota > kRuote) return {};
  return kTavolaRuote[static_cast<std::size_t>(ruota - 1)].sigla;
}

std::string_view SiglaRuotaTutte(int codice) { return codice == kTutte ? "Tutte" : SiglaRuota(codice); }

}  // namespace vaticlo
