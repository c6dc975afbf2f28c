#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "console/comandi/comandi.h"

namespace vaticlo {

/// What the exit status of the program means, a line each.
[[nodiscard]] std::string testoStatiDiUscita();

/// The names of the object that --json of a command writes, a line each; empty without any.
[[nodiscard]] std::string testoJson(const Comando& comando);

/// The manual page, in the language of man(7), from the table of commands.
[[nodiscard]] std::string paginaDiManuale(const std::vector<Comando>& tavola);

/// What completes a command line in a shell ("bash", "zsh" or "fish"): commands, options, and where a method
/// is asked for, the methods of the folder. Empty for another shell.
[[nodiscard]] std::string completamento(std::string_view guscio, const std::vector<Comando>& tavola);

}  // namespace vaticlo
