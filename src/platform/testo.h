#pragma once

#include <optional>
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

/// A form that is the same for texts that differ only by upper and lower case or by how their accents are
/// composed. Nothing for bytes that are no UTF-8.
[[nodiscard]] std::optional<std::string> formaDiConfronto(std::string_view testo);

/// The text without the mark that some editors put in front of UTF-8.
[[nodiscard]] std::string_view senzaMarca(std::string_view testo);
/// The text begins as one in UTF-16 does, which nothing here reads.
[[nodiscard]] bool inUtf16(std::string_view testo);

/// The text as a message quotes it: 60 characters at most, "?" in place of each control character and each
/// byte that is no UTF-8.
[[nodiscard]] std::string citazione(std::string_view testo);

}  // namespace vaticlo
