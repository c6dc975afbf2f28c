#include "console/argomenti.h"

#include <cmath>

#include "console/esito.h"
#include "platform/conversione.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {
constexpr double kMassimoIntero = 1e9;
}

std::optional<std::string> Argomenti::seDato(std::string_view nome) const {
  const auto posto = testi_.find(nome);
  return posto == testi_.end() ? std::nullopt : std::optional(posto->second.front());
}

int Argomenti::intero(std::string_view nome) const {
  const auto& testo = (*this)[nome];
  const auto numero = numeroDaTesto(testo);
  if (!numero || std::abs(*numero) > kMassimoIntero || *numero != std::trunc(*numero))
    throw UsoErrato(std::string(nome) + " deve essere un numero intero, non \"" + citazione(testo) + "\"");
  return static_cast<int>(*numero);
}

}  // namespace vaticlo
