#pragma once

#include "platform/failure.h"

namespace vaticlo::prova {

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

}  // namespace vaticlo::prova
