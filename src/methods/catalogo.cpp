#include "methods/catalogo.h"

#include <algorithm>

#include "methods/cartella_metodi.h"
#include "platform/failure.h"

namespace vaticlo {

std::vector<std::string> CaricaElencoMetodi(const CartellaProgramma& cartella, const SceltaMetodo& scelta,
                                            NomeSenzaDat senzaDat) {
  if (!scelta.tutti) return {scelta.nome};
  auto elenco = elencaFile(cartellaMetodi(cartella));
  for (auto& nome : elenco) {
    const auto fine = nome.find(".dat");
    if (fine == std::string::npos && senzaDat == NomeSenzaDat::Failure)
      throw RuntimeFailure(Errore::ArgomentoNonValido, nome)
          .spiega({.fatto = "Nella cartella Metodi c'è un file che non è un metodo: " + nome,
                   .rimedio = "Toglietelo dalla cartella.",
                   .capitolo = "Se il programma si chiude con un errore"});
    nome.resize(fine == std::string::npos ? 0 : fine);
  }
  return elenco;
}

std::vector<std::string> metodiDaGiudicare(const CartellaProgramma& cartella, const SceltaMetodo& scelta) {
  auto elenco = CaricaElencoMetodi(cartella, scelta, NomeSenzaDat::VoceVuota);
  if (scelta.tutti) std::erase(elenco, "");
  return elenco;
}

std::vector<std::string> metodiOfferti(const CartellaProgramma& cartella) {
  std::vector<std::string> offerti = {"Metodo 1", "Metodo 2"};
  try {
    for (auto& nome : CaricaElencoMetodi(cartella, {}, NomeSenzaDat::VoceVuota))
      if (!nome.empty() && std::find(offerti.begin(), offerti.end(), nome) == offerti.end())
        offerti.push_back(std::move(nome));
  } catch (const RuntimeFailure&) {
    // The two that every program folder has are still offered.
  }
  return offerti;
}

}  // namespace vaticlo
