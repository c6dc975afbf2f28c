#include "methods/metodo.h"

#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

void FileMetodo::fuoriDallaGriglia() { throw RuntimeFailure(Errore::Indice); }

std::int16_t FileMetodo::EstrazioneCalcolo(int slot) const {
  const FileMetodo& m = *this;
  return static_cast<std::int16_t>(m(slot, kCampoEstrazione, 1) * 100 + m(slot, kCampoEstrazione, 2));
}

FileMetodo LeggiMetodo(const CartellaProgramma& cartella, std::string_view nome) {
  FileMetodo metodo;
  leggiFile(cartella.metodo(nome), metodo.ottetti());
  return metodo;
}

void ScriviMetodo(const CartellaProgramma& cartella, std::string_view nome, const FileMetodo& metodo) {
  scriviFile(cartella.metodo(nome), metodo.ottetti());
}

int ContaPrevisioni(const FileMetodo& metodo) {
  int slot = 1;
  while (metodo(slot, kCampoEstrazione, 2) != 0) ++slot;
  return slot - 1;
}

}  // namespace vaticlo
