#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// " (forse NAME?)" for the name that a mistyped word most likely meant; empty when none is near.
[[nodiscard]] std::string forse(std::string_view parola, const std::vector<std::string>& nomi);

}  // namespace vaticlo
