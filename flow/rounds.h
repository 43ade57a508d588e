#pragma once

#include "common/real.h"

namespace flow {

/// Counts the rounds of an iteration and ends it with an overflow fault when it does not settle:
/// near S = C the prescribed iteration of a nozzle or venturi swings for ever. No entry that
/// settles at all needs as many rounds.
class Rounds {
 public:
  static constexpr int kMaxRounds = 100000;

  void Next() {
    if (++count_ > kMaxRounds) common::RaiseFault(common::Fault::kOverflow);
  }

 private:
  int count_ = 0;
};

/// Relative change at which an iteration has settled.
inline constexpr double kRelativeStep = 1e-05;

}  // namespace flow
