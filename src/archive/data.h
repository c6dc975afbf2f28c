#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace vaticlo {

using Data = std::chrono::year_month_day;

/// The day with these numbers; nothing when there is no such day.
[[nodiscard]] std::optional<Data> dataDiCalendario(int giorno, int mese, int anno);

/// Day, month and year separated by "/", "-" or ".", the year in four or in two digits (00 to 29 is 20xx, 30
/// to 99 is 19xx), with blanks around at most. Nothing for any other text and for a day that does not exist.
[[nodiscard]] std::optional<Data> dataDaTesto(std::string_view testo);

/// A date as it is typed into a date picker: in those forms, or in eight or six digits without anything
/// between them.
[[nodiscard]] std::optional<Data> dataDigitata(std::string_view testo);

/// Day of the month (1 to 31), month (1 to 12) and year of a date as plain numbers.
[[nodiscard]] int giorno(const Data& data);
[[nodiscard]] int mese(const Data& data);
[[nodiscard]] int anno(const Data& data);
[[nodiscard]] int annoDueCifre(const Data& data);

/// The century byte that a search by date looks for: 20 below the two-digit year 45, else 19, whatever the
/// century of the date typed. It differs on purpose from the century of a save and from that of the
/// statistics' date pickers.
[[nodiscard]] int secoloDiRicerca(int annoDueCifre);

}  // namespace vaticlo
