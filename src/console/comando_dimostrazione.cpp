#include <iostream>

#include <CLI/CLI.hpp>

#include "console/sessione.h"
#include "operations/dimostrazione.h"

namespace vaticlo {

void aggiungiDimostrazione(CLI::App& app, Sessione& sessione) {
  app.add_subcommand("dimostrazione", "Riempie una cartella vuota con estrazioni e previsioni inventate")
      ->callback([&sessione] { creaDimostrazione(sessione.programma(), std::cout); });
}

}  // namespace vaticlo
