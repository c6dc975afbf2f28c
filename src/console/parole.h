#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// The words of a line of a file of commands, or why it has none (Italian).
struct ParoleDellaRiga {
  std::vector<std::string> parole;
  std::string errore;
};

/// Words quoted as in a shell: single quotes, double quotes, backslash. No word for a blank line or one that
/// begins with "#". (CLI11's own splitting knows no quote and no backslash inside a word, and takes a quote
/// that is not closed.)
[[nodiscard]] ParoleDellaRiga paroleDellaRiga(std::string_view riga);

}  // namespace vaticlo
