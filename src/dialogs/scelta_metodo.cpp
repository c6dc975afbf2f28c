#include "dialogs/scelta_metodo.h"

namespace vaticlo {

ControlliMetodo::ControlliMetodo(const CartellaProgramma& cartella) {
  optSelMetodo[0].Caption("Tutti");
  optSelMetodo[0].Value(true);
  optSelMetodo[1].Caption("Scegli");
  for (auto& nome : metodiOfferti(cartella)) cmbMetodo.AddItem(std::move(nome));
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
  accendi(indice);
  if (indice != 0) cmbMetodo.ListIndex(0);
}

}  // namespace vaticlo
