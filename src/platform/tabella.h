#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vaticlo {

/// What stands in a field of a table: nothing, a text, a whole number, or a decimal one that is already
/// rounded as it is to be shown.
using Cella = std::variant<std::monostate, std::string, int, double>;

/// Rows under named columns, as they leave the program.
struct Tabella {
  std::vector<std::string> colonne;
  std::vector<std::vector<Cella>> righe;
};

/// The field as a person reads it, with a decimal comma; empty for nothing.
[[nodiscard]] std::string testoCella(const Cella& cella);

/// The names of the columns and then the rows, a line each ended by CR LF: fields between ";", one with ";",
/// quotes or a line end in it in quotes. UTF-8; a file for spreadsheets has kBom in front.
[[nodiscard]] std::string testoCsv(const Tabella& tabella);
inline constexpr std::string_view kBom = "\xEF\xBB\xBF";

/// The same with tabs between the fields and LF behind each line, as spreadsheets paste it. Tabs and line
/// ends inside a field become blanks.
[[nodiscard]] std::string testoDaIncollare(const Tabella& tabella);

}  // namespace vaticlo
