#pragma once

#include <atomic>
#include <limits>

namespace kov {

/// The largest difference that may still be of interest, for all threads of a search. Only ever sinks.
class SharedBound {
 public:
  double get() const { return bound_.load(std::memory_order_relaxed); }

  void lower_to(double bound) {
    double current = get();
    while (bound < current && !bound_.compare_exchange_weak(current, bound, std::memory_order_relaxed)) {
    }
  }

 private:
  std::atomic<double> bound_ = std::numeric_limits<double>::infinity();
};

}  // namespace kov
