#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>

namespace vaticlo::prova {

/// Looks again and again until it is so; throws std::runtime_error when that takes a minute.
inline void attendi(const std::string& che, const std::function<bool()>& ora) {
  const auto fine = std::chrono::steady_clock::now() + std::chrono::minutes(1);
  while (!ora()) {
    if (std::chrono::steady_clock::now() > fine) throw std::runtime_error("waited in vain for " + che);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

}  // namespace vaticlo::prova
