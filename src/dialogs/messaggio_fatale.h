#pragma once

#include <string>

#include "platform/failure.h"

namespace vaticlo {

/// The text of the box that ends the program: the failure's number, what happened, in which window, what to
/// do now, and where the guide says more.
[[nodiscard]] std::string messaggioFatale(const RuntimeFailure& failure);

}  // namespace vaticlo
