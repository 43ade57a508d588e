#pragma once

#include <functional>
#include <optional>

#include "common/fault.h"

namespace tests {

/// The fault that an action raises, nothing when it comes to its end.
inline std::optional<common::RuntimeFault> FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const common::RuntimeFault& fault) {
    return fault;
  }
  return std::nullopt;
}

}  // namespace tests
