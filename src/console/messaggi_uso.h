#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace vaticlo {

/// Gives the parser and its commands to come their Italian texts.
void parlaItaliano(CLI::App& app);
/// The same for the help option of every command, once all are there.
void parlaItalianoAiuto(CLI::App& app);

/// What is wrong with a command line, and how it is done right.
[[nodiscard]] std::string spiegaErrore(const CLI::App& app, const CLI::ParseError& errore);

}  // namespace vaticlo
