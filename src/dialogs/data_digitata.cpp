#include "dialogs/data_digitata.h"

namespace vaticlo {

bool trattieneData(SelettoreData& selettore, const std::string& digitata, Servizi& servizi) {
  const auto data = dataDigitata(digitata);
  const auto& ultima = selettore.MaxDate();
  if (data && (!ultima || *data <= *ultima)) {
    selettore.scegli(*data);
    return false;
  }
  servizi.mostra({data
                      ? "La data ''" + digitata + "'' è nel futuro: qui si sceglie al massimo quella di oggi."
                      : "''" + digitata +
                            "'' non è una data. Scrivere giorno, mese e anno, per esempio 28/02/2026 oppure "
                            "28022026.",
                  "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
  return true;
}

}  // namespace vaticlo
