#include "operations/metodi_guasti.h"

#include "methods/cartella_metodi.h"
#include "methods/metodo.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

/// Empty for a method that can be judged.
std::string motivo(const CartellaProgramma& cartella, const std::string& nome) {
  try {
    if (esisteMetodo(cartella, nome))
      static_cast<void>(ContaPrevisioni(LeggiMetodo(cartella, nome, SeManca::Vuoto)));
    return "";
  } catch (const RuntimeFailure& failure) {
    return failure.errore() == Errore::Indice ? "contiene dieci previsioni" : failure.what();
  }
}

}  // namespace

std::vector<MetodoGuasto> metodiGuasti(const CartellaProgramma& cartella, const SceltaMetodo& scelta) {
  std::vector<MetodoGuasto> guasti;
  const auto prova = [&](const std::string& nome) {
    if (auto testo = motivo(cartella, nome); !testo.empty()) guasti.push_back({nome, std::move(testo)});
  };
  if (!scelta.tutti) {
    prova(scelta.nome);
    return guasti;
  }
  try {
    for (const auto& file : elencaFile(cartellaMetodi(cartella)))
      if (const auto fine = file.find(".dat"); fine == std::string::npos)
        guasti.push_back({file, "il nome del file non ha \".dat\""});
      else
        prova(file.substr(0, fine));
  } catch (const RuntimeFailure& failure) {
    guasti.push_back({"Metodi/", failure.what()});
  }
  return guasti;
}

}  // namespace vaticlo
