#include "methods/testi_previsione.h"

#include <array>

#include "archive/ruota.h"

namespace vaticlo {

namespace {

template <class Numeri>
std::string uniti(const Numeri& numeri, char separatore) {
  std::string testo;
  for (const int numero : numeri) {
    if (!testo.empty()) testo += separatore;
    testo += std::to_string(numero);
  }
  return testo;
}

std::string coda(int ruota, int colpo) {
  return " " + std::string(SiglaRuota(ruota)) + " al " + std::to_string(colpo);
}

}  // namespace

std::string testoRuote(const Previsione& previsione) {
  std::string testo;
  for (std::size_t n = 0; n < previsione.Ruote.size(); ++n) {
    if (n > 0) testo += '-';
    testo += SiglaRuota(previsione.Ruote[n]);
  }
  if (previsione.Tutte) testo += previsione.Ruote.empty() ? "Tutte" : "-Tutte";
  return testo;
}

void scriviTelefono(FileRapporto& rapporto, const Previsione& previsione) {
  if (!previsione.NumeroTelefono.empty())
    rapporto.riga(" Numero di Telefono di previsione: ", previsione.NumeroTelefono);
}

void scriviGiocate(FileRapporto& rapporto, const Previsione& previsione) {
  rapporto.riga(" Ruote: ", testoRuote(previsione));
  if (!previsione.Ambate.empty()) rapporto.riga(" Ambate: ", uniti(previsione.Ambate, '-'));
  if (!previsione.Ambi.empty()) {
    std::string testo;
    for (const auto& [a, b] : previsione.Ambi)
      testo += (testo.empty() ? "" : ";") + std::to_string(a) + "-" + std::to_string(b);
    rapporto.riga(" Ambi Secchi: ", testo);
  }
  if (!previsione.Sup.empty()) {
    std::string testo;
    for (const auto& combinazione : previsione.Sup)
      testo += (testo.empty() ? "" : ";") + uniti(combinazione, '-');
    rapporto.riga(" Sorti Superiori: ", testo);
  }
}

std::string rigaAmbata(int numero, int ruota, int colpo) {
  return " Ambata " + std::to_string(numero) + coda(ruota, colpo) + "°colpo";
}

std::string rigaAmbo(int a, int b, int ruota, int colpo) {
  return " Ambo " + std::to_string(a) + "-" + std::to_string(b) + coda(ruota, colpo) + "°colpo";
}

std::string rigaAmboTutte(int a, int b, int ruota, int colpo) {
  return " Ambo " + std::to_string(a) + "-" + std::to_string(b) + " su Tutte (" +
         std::string(SiglaRuota(ruota)) + ") al " + std::to_string(colpo) + "°colpo";
}

std::string rigaNumeri(const std::string& inizio, const std::vector<int>& usciti, int ruota, int colpo) {
  std::string testo = inizio;
  for (const int numero : usciti) testo += " " + std::to_string(numero);
  return testo + coda(ruota, colpo) + "° colpo";
}

std::string inizioSorte(std::size_t usciti) {
  static constexpr std::array<const char*, 4> kNomi = {"Ambo", "Terno", "Quaterna", "Cinquina"};
  return std::string(" ") + kNomi.at(usciti - 2) + " in sorti superiori";
}

}  // namespace vaticlo
