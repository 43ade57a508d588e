#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace monkey {

/// Random choices that are the same for the same seed on every machine.
class Random {
 public:
  Random(std::uint64_t seed, std::uint64_t trial) : engine_(seed * 1'000'003 + trial) {}

  /// 0 to count - 1; 0 for an empty range.
  std::size_t Below(std::size_t count) { return count == 0 ? 0 : engine_() % count; }
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::size_t>(high - low + 1)));
  }
  bool Percent(int chance) { return Below(100) < static_cast<std::size_t>(chance); }
  /// 0 to 1.
  double Fraction() { return static_cast<double>(engine_() >> 11) * 0x1p-53; }
  /// An element of a list that is not empty.
  template <class List>
  const auto& Of(const List& list) {
    return list[Below(std::size(list))];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace monkey
