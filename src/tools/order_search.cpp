#include "tools/order_search.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>
#include <utility>

#include "tools/block_search.h"
#include "tools/comb_count.h"
#include "tools/search_plan.h"

namespace kov {
namespace {

/// What is done between two polls, unless one choice of the members that are not looked up takes more:
/// some milliseconds.
constexpr std::uint32_t steps_per_block = 1U << 14;

/// One kind of sums, signed or of squares.
struct Kind {
  OrderTerms terms;
  SharedBound bound;

  Kind(std::vector<double> values, std::uint32_t order, std::uint32_t low, Signs signs,
       const CombRules& rules)
      : terms(std::move(values), order, low, signs, rules) {}

  /// The position that a walk may skip to, since all sums on the way are too small.
  std::optional<std::uint32_t> hopeless(std::span<const std::uint32_t> upper) const {
    double size = 0.0;  // of the members above
    for (auto i = static_cast<std::uint32_t>(upper.size()); i-- > 0;) {
      const std::uint32_t position = terms.half().members() + 1 + i;
      const std::uint32_t end = i + 1 < upper.size() ? upper[i + 1] : terms.count();
      if (too_small(size + terms.largest_from(upper[i]), position, end)) return position + 1;
      size += std::fabs(terms.value(upper[i]));
      if (too_small(size, position, upper[i])) return position;
    }
    return std::nullopt;
  }

  /// Whether members of this size at position m and above, and any before element t below it, are too small.
  bool too_small(double size, std::uint32_t m, std::uint32_t t) const {
    const double reach = terms.reach(m, t);
    return size + reach < 1.0 - terms.tolerance().window(bound.get(), true, size, reach);
  }
};

/// The search of one order by any number of threads.
class Search {
 public:
  Search(std::span<const CombElement> elements, int order, const CombRules& rules);

  OrderResult run(unsigned threads, const OrderPoll& poll);

 private:
  /// A thread's own lists, one for each kind.
  using Finds = std::vector<BlockSearch>;

  std::optional<SuffixWalk::Block> next_block();
  void end_dealing();
  /// Searches block after block until there are none; after_block is called behind each and gives false to
  /// end the whole search.
  void work(Finds& finds, const std::function<bool()>& after_block);
  void work_beside(Finds& finds) noexcept;
  double tested() const;
  OrderResult result(const std::vector<Finds>& finds) const;

  const CombRules& rules_;
  std::uint32_t order_;
  std::int64_t element_count_;
  /// The place of each element that is searched among all of them.
  std::vector<std::uint32_t> places_;
  SearchPlan plan_;
  std::vector<std::unique_ptr<Kind>> kinds_;

  mutable std::mutex mutex_;  // guards what follows
  SuffixWalk walk_;
  SuffixWalk::Block last_;
  bool dealing_ = true;
  bool stopped_ = false;
  std::exception_ptr failure_;
};

SearchPlan required_plan(std::size_t elements, int order) {
  const auto plan = plan_search(static_cast<std::int64_t>(elements), order);
  if (!plan) throw std::invalid_argument("combination search without a plan");
  return *plan;
}

std::uint32_t longest_block(std::uint32_t signs) {
  return std::max(1U, steps_per_block >> std::min(signs, 31U));
}

Search::Search(std::span<const CombElement> elements, int order, const CombRules& rules)
    : rules_(rules),
      order_(static_cast<std::uint32_t>(order)),
      element_count_(static_cast<std::int64_t>(elements.size())),
      places_(distinct_enough(elements, order, rules)),
      plan_(required_plan(places_.size(), order)),
      walk_(static_cast<std::uint32_t>(places_.size()), order_, plan_.low,
            longest_block(order_ - plan_.low)) {
  const auto add_kind = [&](double CombElement::*value, Signs signs) {
    std::vector<double> values;
    for (const std::uint32_t place : places_) values.push_back(elements[place].*value);
    kinds_.push_back(std::make_unique<Kind>(std::move(values), order_, plan_.low, signs, rules));
  };
  add_kind(&CombElement::re, Signs::plus_and_minus);
  if (rules.squares) add_kind(&CombElement::square, Signs::plus);
}

std::optional<SuffixWalk::Block> Search::next_block() {
  const std::lock_guard lock(mutex_);
  if (!dealing_) return std::nullopt;
  auto block = walk_.next([this](std::span<const std::uint32_t> upper) {
    std::optional<std::uint32_t> position = kinds_.front()->hopeless(upper);
    // No position comes before every position: what one kind wants to see is not skipped.
    if (kinds_.size() > 1) position = std::min(position, kinds_.back()->hopeless(upper));
    return position;
  });
  if (block) last_ = *block;
  dealing_ = block.has_value();
  return block;
}

void Search::end_dealing() {
  const std::lock_guard lock(mutex_);
  dealing_ = false;
}

void Search::work(Finds& finds, const std::function<bool()>& after_block) {
  while (const auto block = next_block()) {
    for (BlockSearch& find : finds) {
      if (!find.complete()) find.search(*block);
    }
    const bool complete =
        std::all_of(finds.begin(), finds.end(), [](const BlockSearch& find) { return find.complete(); });
    if (complete) return end_dealing();
    if (after_block()) continue;
    const std::lock_guard lock(mutex_);
    stopped_ = dealing_;
    dealing_ = false;
  }
}

void Search::work_beside(Finds& finds) noexcept {
  try {
    work(finds, [] { return true; });
  } catch (...) {
    const std::lock_guard lock(mutex_);
    failure_ = std::current_exception();
    dealing_ = false;
  }
}

/// The combinations up to the last one of the last block that was dealt out: those with a smaller member at
/// the highest position where they differ, position by position.
double Search::tested() const {
  const std::lock_guard lock(mutex_);
  const auto below = [this](std::uint32_t element, std::uint32_t position) {
    const std::int64_t place = element < places_.size() ? places_[element] : element_count_;
    return std::ldexp(pm_combinations(place, static_cast<int>(position) + 1),
                      static_cast<int>(order_ - position) - 1);
  };
  double count = below(last_.end, plan_.low);
  for (std::uint32_t i = 0; i < last_.upper.size(); ++i) count += below(last_.upper[i], plan_.low + 1 + i);
  return count;
}

OrderResult Search::run(unsigned threads, const OrderPoll& poll) {
  Finds own;
  for (const auto& kind : kinds_) own.emplace_back(kind->terms, rules_, kind->bound);
  std::vector<Finds> finds(threads, own);
  {
    struct Helpers {
      Search& search;
      std::vector<std::thread> threads;
      ~Helpers() {
        search.end_dealing();
        for (std::thread& thread : threads) thread.join();
      }
    };
    Helpers helpers{*this, {}};
    helpers.threads.reserve(threads);
    for (unsigned i = 1; i < threads; ++i) helpers.threads.emplace_back([&, i] { work_beside(finds[i]); });
    work(finds.front(), [&] { return poll(tested()); });
  }
  if (failure_) std::rethrow_exception(failure_);
  return result(finds);
}

OrderResult Search::result(const std::vector<Finds>& finds) const {
  const auto matches = [&](std::size_t kind) {
    BestMatches best(rules_.nearest, rules_.one_per_difference);
    for (const Finds& thread : finds) best.merge(thread[kind].best());
    std::vector<CombMatch> all = best.matches();
    for (CombMatch& match : all) {
      for (std::uint32_t& member : match.members) member = places_[member];
    }
    return all;
  };
  OrderResult result{.sums = matches(0), .squares = {}, .tested = 0.0, .stopped = stopped_};
  if (kinds_.size() > 1) result.squares = matches(1);
  result.tested = stopped_ ? tested() : pm_combinations(element_count_, static_cast<int>(order_));
  return result;
}

}  // namespace

OrderResult search_order(std::span<const CombElement> elements, int order, const CombRules& rules,
                         unsigned threads, const OrderPoll& poll) {
  return Search(elements, order, rules).run(std::max(threads, 1U), poll);
}

std::vector<std::uint32_t> distinct_enough(std::span<const CombElement> elements, int order,
                                           const CombRules& rules) {
  const std::size_t enough =
      static_cast<std::size_t>(order) + (rules.one_per_difference ? 0 : rules.nearest - 1);
  std::vector<std::uint32_t> kept;
  std::size_t equal = 0;
  for (std::uint32_t i = 0; i < elements.size(); ++i) {
    equal = i > 0 && elements[i].re == elements[i - 1].re ? equal + 1 : 1;
    if (equal <= enough) kept.push_back(i);
  }
  return kept;
}

}  // namespace kov
