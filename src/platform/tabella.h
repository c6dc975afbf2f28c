#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vaticlo {

/// What stands in a field of a table: nothing, a text, a whole number, or a decimal one that is already
/// rounded as it is to be shown.
using Cella = std::variant<std::monostate, std::string, int, double>;

struct Colonna {
  enum class Tipo {
    Testo,
    Numero,
    Giorno,  ///< a text of day, month and year, which has its place in time
  };
  std::string nome;
  Tipo tipo = Tipo::Testo;
  int decimali = 0;              ///< of its numbers where they stand one below the other
  std::string spiegazione = {};  ///< what it counts, for who points at its head
  bool operator==(const Colonna&) const = default;
};

/// Rows under named columns: one table for the screen, for paper and for other programs.
struct Tabella {
  std::vector<Colonna> colonne;
  std::vector<std::vector<Cella>> righe;
  bool operator==(const Tabella&) const = default;
};

/// The field as a person reads it, with a decimal comma; empty for nothing.
[[nodiscard]] std::string testoCella(const Cella& cella);
/// The same as it stands in a column, with all its decimals.
[[nodiscard]] std::string testoCella(const Cella& cella, const Colonna& colonna);

/// The names of the columns and then the rows, a line each ended by CR LF: fields between ";", one with ";",
/// quotes or a line end in it in quotes. UTF-8; a file for spreadsheets has kBom in front.
[[nodiscard]] std::string testoCsv(const Tabella& tabella);
inline constexpr std::string_view kBom = "\xEF\xBB\xBF";

/// The same with tabs between the fields and LF after each line, as spreadsheets paste it. Tabs and line
/// ends inside a field become blanks.
[[nodiscard]] std::string testoDaIncollare(const Tabella& tabella);

}  // namespace vaticlo
