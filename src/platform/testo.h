#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// The text without its surrounding blanks. Only U+0020 is a blank.
[[nodiscard]] std::string_view senzaBlanchi(std::string_view testo);

/// The elements between the separators; an empty text has none, "a;" has two.
[[nodiscard]] std::vector<std::string_view> dividi(std::string_view testo, char separatore);

/// Upper case of a UTF-8 text, character by character; bytes that are no UTF-8 stay as they are.
[[nodiscard]] std::string maiuscolo(std::string_view testo);

}  // namespace vaticlo
