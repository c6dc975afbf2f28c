#include "platform/orologio.h"

#include <ctime>

namespace vaticlo {

std::chrono::year_month_day dataLocale() {
  const std::time_t adesso = std::time(nullptr);
  const std::tm locale = *std::localtime(&adesso);
  return std::chrono::year_month_day{std::chrono::year{locale.tm_year + 1900},
                                     std::chrono::month{static_cast<unsigned>(locale.tm_mon + 1)},
                                     std::chrono::day{static_cast<unsigned>(locale.tm_mday)}};
}

}  // namespace vaticlo
