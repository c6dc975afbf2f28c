#include "methods/decodifica.h"

#include "archive/ruota.h"

namespace vaticlo {

namespace {

void aggiungiGruppo(std::string& testo, int gruppo) {
  testo += gruppo <= 9 ? ".0" : ".";
  testo += std::to_string(gruppo);
}

void decodificaRuote(const FileMetodo& metodo, int slot, Previsione& previsione) {
  previsione.Ruote.clear();
  previsione.Tutte = false;
  // Meant: the first cell is taken without a test for 0, so a list without wheels has the wheel 0.
  for (int pos = 1; pos == 1 || metodo(slot, kCampoRuote, pos) != 0; ++pos) {
    const int codice = metodo(slot, kCampoRuote, pos);
    if (codice == kTutte)
      previsione.Tutte = true;
    else
      previsione.Ruote.push_back(codice);
  }
}

void decodificaAmbate(const FileMetodo& metodo, int slot, Previsione& previsione) {
  previsione.Ambate.clear();
  const int prima = metodo(slot, kCampoAmbate, 1);
  if (prima != 0) previsione.Ambate.push_back(static_cast<std::uint8_t>(prima));
  // Meant: an empty first cell does not end the list, which is read on from the second.
  for (int pos = 2; metodo(slot, kCampoAmbate, pos) != 0; ++pos)
    previsione.Ambate.push_back(metodo(slot, kCampoAmbate, pos));
}

void decodificaSup(const FileMetodo& metodo, int slot, Previsione& previsione) {
  previsione.Sup.clear();
  std::vector<std::int16_t> lavoro;
  int pos = 1;
  if (metodo(slot, kCampoSup, 1) != 0) {
    lavoro.push_back(metodo(slot, kCampoSup, 1));
    pos = 2;
  }
  for (; metodo(slot, kCampoSup, pos) != 0; ++pos) {
    const int cella = metodo(slot, kCampoSup, pos);
    if (cella == kChiusura) {
      if (metodo(slot, kCampoSup, pos + 1) == 0) previsione.Sup.push_back(lavoro);
      continue;
    }
    if (metodo(slot, kCampoSup, pos - 1) == kChiusura) {
      previsione.Sup.push_back(lavoro);
      lavoro.clear();
    }
    lavoro.push_back(static_cast<std::int16_t>(cella));
  }
}

}  // namespace

std::string testoTelefono(const FileMetodo& metodo, int slot) {
  std::string testo;
  const int decine = metodo(slot, kCampoEstrazione, 3);
  if (decine != 0) testo = std::to_string(decine * 10 + metodo(slot, kCampoEstrazione, 4));
  int pos = 5;
  for (; metodo(slot, kCampoEstrazione, pos + 1) != 0; ++pos)
    aggiungiGruppo(testo, metodo(slot, kCampoEstrazione, pos));
  if (metodo(slot, kCampoEstrazione, pos) != 0) aggiungiGruppo(testo, metodo(slot, kCampoEstrazione, pos));
  return testo;
}

void Decodificatore::DecodificaPrevisione(const FileMetodo& metodo, int slot, Previsione& previsione) {
  previsione.NumeroPrevisione = slot;
  previsione.EstrazioneCalcolo = metodo.EstrazioneCalcolo(slot);
  previsione.GiornoCalcolo = metodo(slot, kCampoData, 1);
  previsione.MeseCalcolo = metodo(slot, kCampoData, 2);
  previsione.SecoloCalcolo = metodo(slot, kCampoData, 3);
  previsione.AnnoCalcolo = metodo(slot, kCampoData, 4);
  previsione.NumeroTelefono = testoTelefono(metodo, slot);
  decodificaRuote(metodo, slot, previsione);
  decodificaAmbate(metodo, slot, previsione);
  decodificaAmbi(metodo, slot, previsione);
  decodificaSup(metodo, slot, previsione);
  previsione.Colpi = metodo(slot, kCampoColpi, 1);
}

// Meant: of a group of three or more numbers only the first and the last reach `Ambi`.
void Decodificatore::decodificaAmbi(const FileMetodo& metodo, int slot, Previsione& previsione) {
  previsione.Ambi.clear();
  int pos = 1;
  if (metodo(slot, kCampoAmbi, 1) != 0) {
    coppia_.first = metodo(slot, kCampoAmbi, 1);
    pos = 2;
  }
  for (; metodo(slot, kCampoAmbi, pos) != 0; ++pos) {
    const int cella = metodo(slot, kCampoAmbi, pos);
    if (cella == kChiusura)
      previsione.Ambi.push_back(coppia_);
    else if (metodo(slot, kCampoAmbi, pos - 1) == kChiusura)
      coppia_.first = static_cast<std::int16_t>(cella);
    else
      coppia_.second = static_cast<std::int16_t>(cella);
  }
}

}  // namespace vaticlo
