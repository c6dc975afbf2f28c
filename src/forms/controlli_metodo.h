#pragma once

#include <array>

#include "forms/controlli.h"
#include "methods/catalogo.h"

namespace vaticlo {

/// Offers the methods of the folder in a list, read anew each time it drops down or is walked; a hint says
/// when no method has the name typed. The folder outlives it.
void offriMetodi(Elenco& elenco, const CartellaProgramma& cartella);

/// The controls that choose between all methods and one: "Tutti" is on and the list disabled when a dialog
/// opens.
class ControlliMetodo {
 public:
  explicit ControlliMetodo(const CartellaProgramma& cartella);

  Riquadro Frame2{"Seleziona Metodo"};
  std::array<Opzione, 2> optSelMetodo;
  Elenco cmbMetodo;

  /// "Scegli" with that name, made before any run: no event follows.
  void scegliNome(const std::string& nome);

  [[nodiscard]] SceltaMetodo scelta() const { return {optSelMetodo[0].Value(), cmbMetodo.Text()}; }

  /// An option was clicked: 1 enables the list and chooses its first item (the list's own event follows when
  /// that is a change), 0 disables it. Where 1 is on already the name in the list stays.
  void optSelMetodo_Click(int indice);

 private:
  void accendi(int indice);
};

}  // namespace vaticlo
