#include "console/riga_di_comando.h"

#include <map>

#include <CLI/CLI.hpp>

#include "console/manuale.h"
#include "console/suggerimento.h"
#include "platform/testo.h"

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

std::vector<std::string> nomiDeiComandi(const CLI::App& app) {
  std::vector<std::string> nomi;
  for (const auto* comando : app.get_subcommands([](const CLI::App*) { return true; }))
    nomi.push_back(comando->get_name());
  return nomi;
}

std::vector<std::string> nomiDelleOpzioni(const CLI::App& comando, const CLI::App& app) {
  std::vector<std::string> nomi;
  for (const auto* una : {&comando, &app})
    for (const auto* opzione : una->get_options())
      if (!opzione->get_lnames().empty()) nomi.push_back("--" + opzione->get_lnames().front());
  return nomi;
}

std::string cheManca(const CLI::App& comando) {
  if (comando.get_require_subcommand_min() > 0) {
    const auto parole = comando.remaining();
    if (parole.empty()) return "manca il comando";
    const auto& parola = parole.front();
    if (parola.starts_with("--"))
      return "opzione sconosciuta: " + citazione(parola) + forse(parola, nomiDelleOpzioni(comando, comando));
    return "comando sconosciuto: " + citazione(parola) + forse(parola, nomiDeiComandi(comando));
  }
  for (const auto* opzione : comando.get_options())
    if (opzione->get_required() && opzione->count() == 0) return "manca " + opzione->get_name();
  return "manca un argomento";
}

std::string cheAvanza(const CLI::App& comando, const CLI::App& app) {
  std::string avanzate, nome;
  for (const auto& parola : app.remaining(true)) {
    avanzate += (avanzate.empty() ? "" : " ") + parola;
    if (nome.empty() && parola.starts_with('-')) nome = parola.substr(0, parola.find('='));
  }
  return "argomento di troppo o sconosciuto: " + citazione(avanzate) +
         forse(nome, nomiDelleOpzioni(comando, app));
}

// An option given twice or an argument with too few values shows itself; what is left is an option without
// its value, which can only be the last word.
std::string cheNonTorna(const CLI::App& comando, const std::string& ultima) {
  for (const auto* opzione : comando.get_options()) try {
      static_cast<void>(opzione->reduced_results());
    } catch (const CLI::ArgumentMismatch&) {
      return "numero di valori sbagliato per " + opzione->get_name();
    }
  return "numero di valori sbagliato per " + citazione(ultima);
}

std::string spiega(const CLI::App& app, const CLI::ParseError& errore, const std::string& ultima) {
  const auto& comando = comandoLetto(app);
  const auto motivo = [&]() -> std::string {
    if (dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr) return cheManca(comando);
    if (dynamic_cast<const CLI::ExtrasError*>(&errore) != nullptr) return cheAvanza(comando, app);
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr) return cheNonTorna(comando, ultima);
    return errore.what();
  };
  const auto* padre = comando.get_parent();
  auto uso =
      FormatoItaliano().make_usage(&comando, padre == nullptr ? comando.get_name() : percorso(comando));
  while (uso.ends_with('\n')) uso.pop_back();
  return motivo() + "\n" + uso + "\nTutti i comandi: " + app.get_name() + " --help";
}

void aggiungiParametri(CLI::App& app, const Comando& comando) {
  for (const auto& parametro : comando.parametri) {
    if (parametro.quanti == 0) {
      app.add_flag(parametro.nome)->description(parametro.aiuto);
      continue;
    }
    auto* opzione = app.add_option(parametro.nome)->description(parametro.aiuto)->type_name(parametro.tipo);
    opzione->expected(parametro.quanti)->allow_extra_args(parametro.quanti > 1);
    opzione->required(parametro.necessario || (!parametro.nome.starts_with("--") && !parametro.facoltativo));
    if (!parametro.predefinito.empty()) opzione->default_str(parametro.predefinito);
  }
}

Argomenti argomentiDi(const CLI::App& app, const Comando& comando) {
  Argomenti argomenti;
  for (const auto& parametro : comando.parametri) {
    const auto* opzione = app.get_option(parametro.nome);
    if (opzione->count() > 0)
      argomenti.metti(parametro.nome, opzione->results());
    else if (!parametro.predefinito.empty())
      argomenti.metti(parametro.nome, {parametro.predefinito});
  }
  return argomenti;
}

}  // namespace

struct RigaDiComando::Interno {
  CLI::App app{"Archivio del Lotto, previsioni, verifiche e statistiche.", "vaticlo-cli"};
  std::vector<Comando> tavola = tavolaComandi();
  std::map<const CLI::App*, const Comando*> comandi;
};

RigaDiComando::RigaDiComando(Luogo luogo) : interno_(std::make_unique<Interno>()) {
  auto& app = interno_->app;
  app.formatter(std::make_shared<FormatoItaliano>());
  app.set_help_flag("-h,--help,--aiuto", "Mostra questo aiuto ed esce");
  app.option_defaults()->group("Opzioni");
  app.get_help_ptr()->group("Opzioni");
  app.group("Comandi");
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // a word that begins with "/" is a path
  if (luogo == Luogo::Terminale) {
    app.set_version_flag("--version", "vaticlo-cli " VATICLO_VERSION, "Mostra la versione ed esce");
    app.add_option("--cartella")
        ->description("Cartella del programma (altrimenti quella dell'eseguibile)")
        ->type_name("DIR");
  }
  for (const auto& comando : interno_->tavola) {
    if (comando.soloDalTerminale && luogo == Luogo::File) continue;
    const auto spazio = comando.nome.find(' ');
    auto* padre = spazio == std::string::npos ? &app : app.get_subcommand(comando.nome.substr(0, spazio));
    auto* sub = padre->add_subcommand(comando.nome.substr(spazio + 1), comando.aiuto);
    sub->get_help_ptr()->group("Opzioni");
    if (comando.fai == nullptr) sub->require_subcommand(1);
    sub->footer(testoJson(comando));
    aggiungiParametri(*sub, comando);
    interno_->comandi[sub] = &comando;
  }
  app.footer(testoStatiDiUscita());  // last: the commands would take it over
}

RigaDiComando::~RigaDiComando() = default;

Ordine RigaDiComando::leggi(const std::vector<std::string>& parole) {
  auto& app = interno_->app;
  Ordine ordine;
  try {
    app.parse(std::vector<std::string>(parole.rbegin(), parole.rend()));
    const auto& letto = comandoLetto(app);
    ordine.comando = interno_->comandi.at(&letto);
    ordine.argomenti = argomentiDi(letto, *ordine.comando);
    if (const auto* cartella = app.get_option_no_throw("--cartella");
        cartella != nullptr && cartella->count() > 0)
      ordine.cartella = cartella->results().front();
  } catch (const CLI::CallForHelp&) {
    ordine.testo = app.help();
  } catch (const CLI::CallForVersion& versione) {
    ordine.testo = std::string(versione.what()) + "\n";
  } catch (const CLI::ParseError& errore) {
    throw UsoErrato(spiega(app, errore, parole.empty() ? "" : parole.back()));
  }
  return ordine;
}

}  // namespace vaticlo
