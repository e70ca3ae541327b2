#pragma once

#include <functional>
#include <vector>

#include "tools/best_matches.h"

namespace kov {

/// The nearest matches of one order.
struct OrderResult {
  std::vector<CombMatch> sums;
  /// All signs are plus.
  std::vector<CombMatch> squares;
  /// The signed combinations that the matches were chosen from; all of the order, unless it was stopped.
  double tested = 0.0;
  bool stopped = false;
};

/// Asked now and then whether to go on; told how many signed combinations of the order are settled so far.
using OrderPoll = std::function<bool(double tested)>;

}  // namespace kov
