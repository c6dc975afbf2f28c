#include "methods/spiegazioni.h"

namespace vaticlo {

namespace {

std::string previsione(const std::string& metodo, int slot) {
  return "La previsione n. " + std::to_string(slot) + " del metodo \"" + metodo + "\" ";
}

}  // namespace

Spiegazione dieciPrevisioni(const std::string& metodo) {
  return {.fatto = "Il metodo \"" + metodo + "\" contiene dieci previsioni: se ne possono leggere nove.",
          .rimedio = "Spostatene una in un altro metodo, o toglietela, con Gestione > Quadro dei Metodi.",
          .capitolo = "La decima previsione di un metodo"};
}

Spiegazione previsioneIlleggibile(const std::string& metodo, int slot) {
  return {.fatto = previsione(metodo, slot) + "non si lascia leggere: una delle sue liste è piena.",
          .rimedio = "Riscrivetela più corta in un altro metodo.",
          .capitolo = "Creare una previsione"};
}

Spiegazione ruotaTutteSola(const std::string& metodo, int slot) {
  return {.fatto = previsione(metodo, slot) + "ha degli ambi e Tutte come unica ruota.",
          .rimedio = "Aggiungetele una ruota (Ba-Tutte) con Gestione > Previsioni > Modifica Previsione.",
          .capitolo = "Tutte da sola"};
}

}  // namespace vaticlo
