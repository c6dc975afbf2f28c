#pragma once

#include <chrono>

namespace vaticlo {

/// Today in the local time of the machine. Only main programs ask; the logic asks through the services.
[[nodiscard]] std::chrono::year_month_day dataLocale();

}  // namespace vaticlo
