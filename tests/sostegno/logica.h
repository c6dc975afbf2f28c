#pragma once

#include <gmock/gmock.h>

#include "platform/failure.h"
#include "sostegno/scenario.h"

/// What the tests of the logic start with.
namespace vaticlo::prova {

using testing::Contains, testing::Each, testing::ElementsAre, testing::HasSubstr, testing::IsEmpty,
    testing::Pair;
using testing::EndsWith, testing::StartsWith;
using Celle = std::vector<int>;

/// The number of the run-time failure in which `fai` ends; 0 when it ends well.
template <class Fai>
[[nodiscard]] int failureDi(Fai&& fai) {
  try {
    static_cast<void>(fai());
  } catch (const RuntimeFailure& failure) {
    return failure.numero();
  }
  return 0;
}

/// Names each test of INSTANTIATE_TEST_SUITE_P by the `nome` of its row.
inline constexpr auto perNome = [](const auto& caso) { return caso.param.nome; };

}  // namespace vaticlo::prova
