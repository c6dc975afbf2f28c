#include "check/righe_di_esito.h"

#include "check/clsmetodo.h"
#include "methods/testi_previsione.h"
#include "platform/testo.h"

namespace vaticlo {

std::vector<RigaDiEsito> righeDiEsito(std::string_view rapporto) {
  using enum RigaDiEsito::Tipo;
  std::vector<RigaDiEsito> trovate;
  int numero = 0;
  bool esito = false;
  for (const auto riga : dividi(rapporto, '\n')) {
    if (riga == kRigaEsito || riga == kRigaChiusura)
      esito = riga == kRigaEsito;
    else if (esito && !riga.empty())
      trovate.push_back({numero, riga == kRigaNegativo  ? Negativo
                                 : riga == kRigaInGioco ? InGioco
                                                        : Vincita});
    ++numero;
  }
  return trovate;
}

}  // namespace vaticlo
