#pragma once

#include <functional>

#include "console/argomenti.h"
#include "platform/tabella.h"

namespace vaticlo {

/// Prints what a command lists: its text, or the table instead where the options ask for CSV on the standard
/// output or for JSON; a CSV file is written besides. UsoErrato for options that exclude each other; failures
/// of scriviFile().
void stampa(const Tabella& tabella, const Argomenti& argomenti, const std::function<void()>& testo);

/// The same with the table itself as text, its columns aligned.
void stampa(const Tabella& tabella, const Argomenti& argomenti);

}  // namespace vaticlo
