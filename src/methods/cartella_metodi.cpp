#include "methods/cartella_metodi.h"

#include <string>
#include <system_error>

#include "platform/failure.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo {

namespace fs = std::filesystem;

fs::path cartellaMetodi(const CartellaProgramma& cartella) { return cartella.file("Metodi"); }

fs::path fileMetodo(const CartellaProgramma& cartella, std::string_view nome) {
  if (portaFuori(nome)) throw RuntimeFailure(Errore::NomeFile, std::string(nome));
  return cartellaMetodi(cartella) / percorsoDa(std::string(senzaBlanchi(nome)) + ".dat");
}

bool esisteMetodo(const CartellaProgramma& cartella, std::string_view nome) {
  std::error_code ignorato;
  return !portaFuori(nome) && fs::is_regular_file(fileMetodo(cartella, nome), ignorato);
}

}  // namespace vaticlo
