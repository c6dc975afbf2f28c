#include "operations/un_passo.h"

#include "methods/cartella_metodi.h"
#include "platform/blocco.h"

namespace vaticlo {

// A refusal is shown when the folder is free again: while somebody reads it, other programs may write.
bool inUnPasso(Programma& programma, const std::function<void()>& passo) {
  try {
    const BloccoCartella blocco(programma.cartella.radice());
    passo();
    return true;
  } catch (const Rifiuto& rifiuto) {
    programma.servizi.mostra({rifiuto.testo, "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
    return false;
  }
}

void richiediMetodo(const Programma& programma, const std::string& nome) {
  if (!esisteMetodo(programma.cartella, nome)) throw Rifiuto{"Non esiste il file del metodo selezionato!"};
}

}  // namespace vaticlo
