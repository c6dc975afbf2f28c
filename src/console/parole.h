#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// The words of a line, quoted as in a shell: single quotes, double quotes, backslash. Nothing when a quote
/// is not closed. No word for a blank line or one that begins with "#".
[[nodiscard]] std::optional<std::vector<std::string>> paroleDellaRiga(std::string_view riga);

}  // namespace vaticlo
