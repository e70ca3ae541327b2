#include "tools/comb_search.h"

#include <thread>

#include "tools/comb_count.h"
#include "tools/order_search.h"

namespace kov {
namespace {

constexpr std::chrono::seconds between_displays{1};

/// Shows once a second how far the search is, and looks for Break.
class CombProgress {
 public:
  CombProgress(double total, const CombClock& clock, Progress& progress)
      : total_(total), clock_(clock), progress_(progress), box_(progress, 0, bar_length), shown_(clock()) {}

  /// False when Break was pressed.
  bool go_on(double tested) {
    const auto now = clock_();
    if (now - shown_ < between_displays) return true;
    shown_ = now;
    box_.at(static_cast<std::int64_t>(bar_length * (tested / total_)));
    progress_.headline(count_text(tested) + " of " + count_text(total_) + " pm-combinations tested");
    return !progress_.break_requested();
  }

 private:
  /// Counts may be beyond any integer.
  static constexpr std::int64_t bar_length = 1000;

  const double total_;
  const CombClock& clock_;
  Progress& progress_;
  ProgressBox box_;
  std::chrono::steady_clock::time_point shown_;
};

}  // namespace

OrderResult search_order_on_all_cores(std::span<const CombElement> elements, int order,
                                      const CombRules& rules, const OrderPoll& poll) {
  // Less is done sooner than a thread is started.
  constexpr double worth_threads = 1 << 20;
  const auto plan = plan_order(elements, order, rules);
  const bool alone = !plan || plan->comparisons < worth_threads;
  return search_order(elements, order, rules, alone ? 1 : std::thread::hardware_concurrency(), poll);
}

double write_comb_search(const CombRequest& request, const CombFileHead& head, const SearchOrder& search,
                         const CombClock& clock, Progress& progress, const CombSink& sink) {
  sink(comb_head_text(request, head));
  const auto elements = static_cast<std::int64_t>(request.elements.size());
  CombProgress display(pm_combinations_up_to(elements, request.order), clock, progress);
  double tested = 0.0;
  bool broken = false;
  for (int order = 1; order <= request.order && !broken; ++order) {
    const OrderPoll poll = [&](double of_order) { return display.go_on(tested + of_order); };
    const OrderResult result = search(request.elements, order, request.rules, poll);
    tested += result.tested;
    broken = result.stopped;
    sink(comb_order_text(result, order, request.rules, request.elements));
  }
  if (broken) sink(" user break ! \n");
  sink(tested_text(tested));
  return tested;
}

}  // namespace kov
