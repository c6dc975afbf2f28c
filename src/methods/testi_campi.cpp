#include "methods/testi_campi.h"

#include <cmath>

#include "archive/ruota.h"
#include "methods/decodifica.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

std::uint8_t nellaCella(int valore) {
  if (valore < 0 || valore > 255) throw RuntimeFailure(Errore::Overflow);
  return static_cast<std::uint8_t>(valore);
}

void scriviTelefono(FileMetodo& metodo, int slot, const std::string& numero) {
  for (int pos = 3; pos <= FileMetodo::Posizioni; ++pos) metodo(slot, kCampoEstrazione, pos) = 0;
  if (numero.empty()) return;
  const auto gruppi = dividi(senzaBlanchi(numero), '.');
  // Meant: blanks alone are not the empty text. They have no first group, and the save fails.
  if (gruppi.empty()) throw RuntimeFailure(Errore::Indice);
  const int primo = inIntero16(gruppi[0]);
  metodo(slot, kCampoEstrazione, 3) = nellaCella(primo / 10);
  metodo(slot, kCampoEstrazione, 4) = nellaCella(primo % 10);
  for (std::size_t n = 1; n < gruppi.size(); ++n)
    metodo(slot, kCampoEstrazione, static_cast<int>(n) + 4) = inByte(gruppi[n]);
}

std::uint8_t codiceRuota(std::string_view parola) {
  const auto cercata = maiuscolo(parola);
  for (int codice = 1; codice <= kTutte; ++codice)
    if (cercata == maiuscolo(SiglaRuotaTutte(codice))) return static_cast<std::uint8_t>(codice);
  throw RifiutoPrevisione("Errore nell'inserimento delle ruote!");
}

void contaCelle(std::string_view testo, const char* rifiuto) {
  std::size_t celle = 0;
  for (const auto gruppo : dividi(testo, ';')) celle += dividi(gruppo, '-').size() + 1;
  // Meant: exactly 180 cells are taken, though a list that long can't be read back.
  if (celle > static_cast<std::size_t>(FileMetodo::Posizioni)) throw RifiutoPrevisione(rifiuto);
}

void scriviGruppi(FileMetodo& metodo, int slot, Campo campo, std::string_view testo) {
  int pos = 1;
  for (const auto gruppo : dividi(testo, ';')) {
    for (const auto numero : dividi(gruppo, '-')) metodo(slot, campo, pos++) = inByte(numero);
    metodo(slot, campo, pos++) = kChiusura;
  }
}

std::string leggiRuote(const FileMetodo& metodo, int slot) {
  std::string testo(SiglaRuotaTutte(metodo(slot, kCampoRuote, 1)));
  for (int pos = 2; metodo(slot, kCampoRuote, pos) != 0; ++pos)
    testo.append("-").append(SiglaRuotaTutte(metodo(slot, kCampoRuote, pos)));
  return testo;
}

std::string leggiAmbate(const FileMetodo& metodo, int slot) {
  std::string testo;
  for (int pos = 1; metodo(slot, kCampoAmbate, pos) != 0; ++pos)
    testo += (pos > 1 ? ";" : "") + std::to_string(metodo(slot, kCampoAmbate, pos));
  return testo;
}

std::string leggiGruppi(const FileMetodo& metodo, int slot, Campo campo) {
  std::string testo;
  int pos = 1;
  if (metodo(slot, campo, 1) != 0) {
    testo = std::to_string(metodo(slot, campo, 1));
    pos = 2;
  }
  for (; metodo(slot, campo, pos) != 0; ++pos) {
    const int cella = metodo(slot, campo, pos);
    if (cella == kChiusura) {
      if (metodo(slot, campo, pos + 1) != 0) testo += ';';
    } else {
      if (metodo(slot, campo, pos - 1) != kChiusura) testo += '-';
      testo += std::to_string(cella);
    }
  }
  return testo;
}

}  // namespace

void scriviEstrazione(FileMetodo& metodo, int slot, int estrazione, const Data& data) {
  const int centinaia = estrazione / 100;
  const int secolo = static_cast<int>(std::nearbyint(anno(data) / 100.0));
  metodo(slot, kCampoEstrazione, 1) = nellaCella(centinaia);
  metodo(slot, kCampoEstrazione, 2) = nellaCella(estrazione - 100 * centinaia);
  metodo(slot, kCampoData, 1) = nellaCella(giorno(data));
  metodo(slot, kCampoData, 2) = nellaCella(mese(data));
  metodo(slot, kCampoData, 3) = nellaCella(secolo);
  metodo(slot, kCampoData, 4) = nellaCella(anno(data) - 100 * secolo);
}

void scriviTesti(FileMetodo& metodo, int slot, const TestiPrevisione& testi) {
  scriviTelefono(metodo, slot, testi.numero);

  int pos = 1;
  for (const auto parola : dividi(senzaBlanchi(testi.ruote), '-'))
    metodo(slot, kCampoRuote, pos++) = codiceRuota(parola);

  metodo(slot, kCampoColpi, 1) = inByte(testi.colpi);

  pos = 1;
  for (const auto numero : dividi(testi.ambate, ';')) metodo(slot, kCampoAmbate, pos++) = inByte(numero);

  // Meant: the ambi are counted as typed and stored trimmed, the combinations counted and stored as typed.
  // Blanks alone are no ambi, but they are a combination that is no number.
  contaCelle(testi.ambi, "Il numero degli ambi inseriti supera il limite massimo possibile!");
  scriviGruppi(metodo, slot, kCampoAmbi, senzaBlanchi(testi.ambi));
  contaCelle(testi.sup,
             "Il numero delle combinazioni superiori inserite supera il limite massimo possibile!");
  scriviGruppi(metodo, slot, kCampoSup, testi.sup);
}

TestiPrevisione leggiTesti(const FileMetodo& metodo, int slot) {
  return {.numero = testoTelefono(metodo, slot),
          .ruote = leggiRuote(metodo, slot),
          .colpi = std::to_string(metodo(slot, kCampoColpi, 1)),
          .ambate = leggiAmbate(metodo, slot),
          .ambi = leggiGruppi(metodo, slot, kCampoAmbi),
          .sup = leggiGruppi(metodo, slot, kCampoSup)};
}

}  // namespace vaticlo
