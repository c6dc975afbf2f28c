#include "console/messaggi_uso.h"

#include <memory>

#include <CLI/CLI.hpp>

namespace vaticlo {

namespace {

class FormatoItaliano : public CLI::Formatter {
 public:
  FormatoItaliano() {
    label("Usage", "Uso");
    label("Positionals", "Argomenti");
    label("OPTIONS", "opzioni");
    label("SUBCOMMAND", "COMANDO");
    label("SUBCOMMANDS", "COMANDI");
    label("REQUIRED", "(necessaria)");
    label("TEXT", "TESTO");
    column_width(34);
  }
};

// The command that was being read when the error came: the innermost one named so far.
const CLI::App& comandoLetto(const CLI::App& app) {
  const auto letti = app.get_subcommands();
  return letti.empty() ? app : comandoLetto(*letti.front());
}

std::string percorso(const CLI::App& app) {
  return app.get_parent() == nullptr ? app.get_name() : percorso(*app.get_parent()) + " " + app.get_name();
}

std::string dopo(const std::string& testo, const std::string& segno) {
  const auto posto = testo.find(segno);
  return posto == std::string::npos ? testo : testo.substr(posto + segno.size());
}

std::string motivo(const CLI::App& comando, const CLI::ParseError& errore) {
  std::string inglese = errore.what();
  if (dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr) {
    if (inglese.find("subcommand") != std::string::npos) {
      const auto parole = comando.remaining();
      return parole.empty() ? "manca il comando" : "comando sconosciuto: " + parole.front();
    }
    return "manca " + inglese.substr(0, inglese.find(" is required"));
  }
  if (dynamic_cast<const CLI::ExtrasError*>(&errore) != nullptr) {
    return "argomento di troppo o sconosciuto: " + dopo(inglese, "not expected: ");
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr)
    return "numero di valori sbagliato per " + inglese.substr(0, inglese.find(':'));
  if (dynamic_cast<const CLI::ValidationError*>(&errore) != nullptr)
    return "valore non ammesso per " + inglese;
  return inglese;
}

}  // namespace

void parlaItaliano(CLI::App& app) {
  app.formatter(std::make_shared<FormatoItaliano>());
  app.set_help_flag("-h,--help,--aiuto", "Mostra questo aiuto ed esce");
  app.option_defaults()->group("Opzioni");
  app.group("Comandi");
}

void parlaItalianoAiuto(CLI::App& app) {
  app.get_help_ptr()->group("Opzioni");
  for (auto* comando : app.get_subcommands([](const CLI::App*) { return true; }))
    parlaItalianoAiuto(*comando);
}

std::string spiegaErrore(const CLI::App& app, const CLI::ParseError& errore) {
  const auto& comando = comandoLetto(app);
  FormatoItaliano formato;
  const auto* padre = comando.get_parent();
  auto uso = formato.make_usage(&comando, padre == nullptr ? comando.get_name() : percorso(comando));
  while (uso.ends_with('\n')) uso.pop_back();
  return motivo(comando, errore) + "\n" + uso + "\nTutti i comandi: " + app.get_name() + " --help";
}

}  // namespace vaticlo
