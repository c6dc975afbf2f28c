#include "forms/controlli_estrazione.h"

namespace vaticlo {

std::string ControlliEstrazione::txtestr_Text(int f) const {
  return txtestr.at(static_cast<std::size_t>(f)).Text();
}

void ControlliEstrazione::txtestr_Mostra(int f, const std::string& testo) {
  txtestr.at(static_cast<std::size_t>(f)).mostra(testo);
}

}  // namespace vaticlo
