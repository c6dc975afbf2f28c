#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vaticlo {

/// The value of a text of one to four digits and nothing else.
[[nodiscard]] std::optional<int> cifre(std::string_view testo);

/// The value of a text that is a whole number from `min` to `max`, with blanks around it at most. Nothing for
/// any other text.
[[nodiscard]] std::optional<int> interoTra(std::string_view testo, int min, int max);

/// The value of a text that is a number: an optional sign, digits and an optional decimal comma with digits
/// after it, with blanks around it at most. Nothing for any other text.
[[nodiscard]] std::optional<double> numeroDaTesto(std::string_view testo);

/// The text as a number from 0 to 255, rounded half to even. Fails with Errore::TipoNonCorrispondente
/// when it is no number, with Overflow when out of range.
[[nodiscard]] std::uint8_t inByte(std::string_view testo);

/// The text as a 16-bit number, rounded half to even. Fails like inByte().
[[nodiscard]] std::int16_t inIntero16(std::string_view testo);

/// The nearest value with that many decimals, a half going to the even neighbour (1/80 to three decimals is
/// 0.012).
[[nodiscard]] double arrotonda(double valore, int decimali);

/// The general form of a number: at most 15 significant digits, no trailing zeros, a decimal comma.
[[nodiscard]] std::string testoDiNumero(double valore);

}  // namespace vaticlo
