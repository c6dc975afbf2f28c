#include "forms/controlli_metodo.h"

#include "methods/cartella_metodi.h"
#include "platform/testo.h"

namespace vaticlo {

void offriMetodi(Elenco& elenco, const CartellaProgramma& cartella) {
  elenco.DropDown = [&elenco, &cartella] { elenco.riempi(metodiOfferti(cartella)); };
  elenco.DropDown();
  elenco.Nota = [&elenco, &cartella]() -> std::string {
    const auto nome = senzaBlanchi(elenco.Text());
    if (nome.empty() || esisteMetodo(cartella, elenco.Text())) return {};
    return "Non c'è nessun metodo di nome \"" + std::string(nome) + "\"";
  };
}

ControlliMetodo::ControlliMetodo(const CartellaProgramma& cartella) {
  optSelMetodo[0].Caption("Tutti");
  optSelMetodo[0].Value(true);
  optSelMetodo[1].Caption("Scegli");
  offriMetodi(cmbMetodo, cartella);
  cmbMetodo.Enabled(false);
}

void ControlliMetodo::scegliNome(const std::string& nome) {
  accendi(1);
  cmbMetodo.Text(nome);
}

void ControlliMetodo::accendi(int indice) {
  optSelMetodo[0].Value(indice == 0);
  optSelMetodo[1].Value(indice != 0);
  cmbMetodo.Enabled(indice != 0);
}

void ControlliMetodo::optSelMetodo_Click(int indice) {
  const bool giaScelto = optSelMetodo[1].Value();
  accendi(indice);
  if (indice != 0 && !giaScelto) cmbMetodo.ListIndex(0);
}

}  // namespace vaticlo
