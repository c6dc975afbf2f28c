#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "check/clsmetodo.h"
#include "console/sessione.h"
#include "platform/rapporto.h"

namespace vaticlo {

namespace {

void verifica(Sessione& sessione, int n, const std::optional<std::string>& metodo) {
  auto& programma = sessione.programma();
  auto& g = programma.globals;
  g.UltimaEstrazione = ApriArchivio(programma.cartella).PrimoIndiceLibero() - 1;
  g.EstrazioneCorrente = g.EstrazioneBase = n;
  eseguiVerifica(programma, {{!metodo, metodo.value_or("")}, std::to_string(n)});
  std::cout << testoRapporto(programma.cartella.esiti()) << "Giocabili: " << g.ContaGiocabili << '\n'
            << "Vincenti: " << g.ContaVincenti << '\n'
            << "In gioco: " << g.ContaInGioco << '\n';
}

}  // namespace

void aggiungiVerifica(CLI::App& app, Sessione& sessione) {
  auto* comando =
      app.add_subcommand("verifica", "Verifica le previsioni calcolate su un'estrazione (Esiti.txt)");
  auto n = std::make_shared<std::string>();
  auto metodo = std::make_shared<std::optional<std::string>>();
  comando->add_option("N", *n, "Numero dell'estrazione")->required();
  comando->add_option("--metodo", *metodo, "Un solo metodo, invece di tutti")->type_name("NOME");
  comando->callback([&sessione, n, metodo] { verifica(sessione, numeroIntero(*n, "N"), *metodo); });
}

}  // namespace vaticlo
