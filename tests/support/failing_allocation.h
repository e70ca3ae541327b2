#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace kov {

/// While it lives, the k-th allocation by operator new of its thread (k >= 1) throws std::bad_alloc; those
/// before and behind it succeed. One at a time a thread.
class FailingAllocation {
 public:
  explicit FailingAllocation(std::int64_t k) noexcept;
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  /// True when the k-th allocation has been asked for.
  bool happened() const noexcept;
};

/// While it lives, allocations by operator new of its thread of more bytes than the limit throw
/// std::bad_alloc. One at a time a thread.
class LimitedAllocations {
 public:
  explicit LimitedAllocations(std::size_t limit) noexcept;
  ~LimitedAllocations();
  LimitedAllocations(const LimitedAllocations&) = delete;
  LimitedAllocations& operator=(const LimitedAllocations&) = delete;
};

/// Runs operation on copies of before: in the k-th run its k-th allocation fails, until a run asks for
/// fewer. check judges the state that each failed run left. Gives the number of failed runs, so that a
/// test can tell that there were any.
template <class State, class Operation, class Check>
std::int64_t fail_each_allocation(const State& before, const Operation& operation, const Check& check) {
  for (std::int64_t failed = 0;; ++failed) {
    State state = before;
    try {
      const FailingAllocation failing(failed + 1);
      operation(state);
      if (!failing.happened()) return failed;
    } catch (const std::bad_alloc&) {
    }
    check(state);
  }
}

}  // namespace kov
