#pragma once

#include <gmock/gmock.h>

#include "sostegno/failure_prova.h"
#include "sostegno/scenario.h"

/// What the tests of the logic start with.
namespace vaticlo::prova {

using testing::Each, testing::ElementsAre, testing::HasSubstr, testing::IsEmpty, testing::Pair;
using testing::EndsWith, testing::StartsWith;
using Celle = std::vector<int>;

}  // namespace vaticlo::prova
