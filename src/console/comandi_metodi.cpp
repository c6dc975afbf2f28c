#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "console/sessione.h"
#include "methods/catalogo.h"
#include "operations/gestione_metodi.h"
#include "platform/testo.h"

namespace vaticlo {

void aggiungiComandiMetodi(CLI::App& app, Sessione& sessione) {
  auto* metodo = app.add_subcommand("metodo", "Crea, rinomina, elimina ed elenca i metodi");
  metodo->require_subcommand(1);
  auto nome = std::make_shared<std::string>(), nuovo = std::make_shared<std::string>();
  const auto conNome = [&](const char* comando, const char* aiuto) {
    auto* sub = metodo->add_subcommand(comando, aiuto);
    sub->add_option("NOME", *nome, "Nome del metodo")->required();
    return sub;
  };

  conNome("crea", "Crea un metodo vuoto")->callback([&sessione, nome] {
    if (GestioneMetodi(sessione.programma()).crea(*nome))
      std::cout << "Creato il metodo " << senzaBlanchi(*nome) << '\n';
  });
  auto* rinomina = conNome("rinomina", "Cambia il nome di un metodo");
  rinomina->add_option("NUOVO", *nuovo, "Nome nuovo")->required();
  rinomina->callback([&sessione, nome, nuovo] {
    if (GestioneMetodi(sessione.programma()).rinomina(*nome, *nuovo))
      std::cout << "Rinominato il metodo " << *nome << " in " << senzaBlanchi(*nuovo) << '\n';
  });
  conNome("elimina", "Elimina un metodo con le sue previsioni")->callback([&sessione, nome] {
    if (GestioneMetodi(sessione.programma()).elimina(*nome))
      std::cout << "Eliminato il metodo " << *nome << '\n';
  });
  metodo->add_subcommand("elenco", "Elenca i metodi")->callback([&sessione] {
    for (const auto& uno : CaricaElencoMetodi(sessione.programma().cartella, {})) std::cout << uno << '\n';
  });
}

}  // namespace vaticlo
