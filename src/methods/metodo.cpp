#include "methods/metodo.h"

#include "methods/cartella_metodi.h"
#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

void FileMetodo::fuoriDallaGriglia() { throw RuntimeFailure(Errore::Indice); }

std::int16_t FileMetodo::EstrazioneCalcolo(int slot) const {
  const FileMetodo& m = *this;
  return static_cast<std::int16_t>(m(slot, kCampoEstrazione, 1) * 100 + m(slot, kCampoEstrazione, 2));
}

FileMetodo LeggiMetodo(const CartellaProgramma& cartella, std::string_view nome, SeManca seManca) {
  FileMetodo metodo;
  leggiFile(fileMetodo(cartella, nome), metodo.ottetti(), seManca);
  return metodo;
}

void ScriviMetodo(const CartellaProgramma& cartella, std::string_view nome, const FileMetodo& metodo) {
  scriviFile(fileMetodo(cartella, nome), metodo.ottetti());
}

namespace {

// Meant: far more slots than a method has.
constexpr int kUltimoSlotDaSpostare = 2000;

}  // namespace

int ContaPrevisioni(const FileMetodo& metodo) {
  int slot = 1;
  while (metodo(slot, kCampoEstrazione, 2) != 0) ++slot;
  return slot - 1;
}

int ContaElencate(const FileMetodo& metodo) {
  int slot = 1;
  while (metodo.EstrazioneCalcolo(slot) != 0) ++slot;
  return slot - 1;
}

int PrimoSlotLibero(const FileMetodo& metodo) {
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot)
    if (metodo(slot, kCampoEstrazione, 1) == 0) return slot;
  return 0;
}

void CopiaSlot(const FileMetodo& origine, int da, FileMetodo& destinazione, int a) {
  for (int campo = 0; campo < FileMetodo::Campi; ++campo)
    for (int pos = 1; pos <= FileMetodo::Posizioni; ++pos)
      destinazione(a, campo, pos) = origine(da, campo, pos);
}

void SvuotaSlot(FileMetodo& metodo, int slot) { CopiaSlot(FileMetodo{}, slot, metodo, slot); }

FileMetodo SenzaPrevisione(const FileMetodo& metodo, int slot) {
  FileMetodo rimaste;
  for (int prima = 1; prima < slot; ++prima) CopiaSlot(metodo, prima, rimaste, prima);
  for (int dopo = slot + 1; dopo <= kUltimoSlotDaSpostare; ++dopo) CopiaSlot(metodo, dopo, rimaste, dopo - 1);
  return rimaste;
}

}  // namespace vaticlo
