#pragma once

#include <functional>
#include <string>

#include <nlohmann/json.hpp>

#include "console/argomenti.h"
#include "platform/tabella.h"

namespace vaticlo {

/// An object whose names keep the order in which they were given.
using Json = nlohmann::ordered_json;

/// What a command tells, in each form that the options --csv and --json may ask for.
struct Uscita {
  Json oggetto;                      ///< with the names that the table of commands documents
  Tabella tabella = {};              ///< of a command that takes --csv
  std::function<void()> testo = {};  ///< prints the text; without it the text is the table, aligned
};

/// Prints the one form that the options ask for; a CSV file is written besides. UsoErrato for options that
/// exclude each other; failures of scriviFile().
void stampa(const Uscita& uscita, const Argomenti& argomenti);

/// The columns of a table as lines below their names.
void stampaAllineata(const Tabella& tabella);

/// The number that a control shows, or its text when it shows none.
[[nodiscard]] Cella numeroOTesto(const std::string& testo);

[[nodiscard]] Json valore(const Cella& cella);
/// The rows as objects. The name of a column becomes one without blanks: "Vincenti %" is "vincentiPercento".
[[nodiscard]] Json righe(const Tabella& tabella);

}  // namespace vaticlo
