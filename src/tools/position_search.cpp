#include "tools/position_search.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "tools/block_search.h"

namespace kov {
namespace {

/// What is done between two polls, unless one choice of the members that are not looked up takes more:
/// some milliseconds.
constexpr std::uint32_t steps_per_block = 1U << 14;

/// One kind of sums, signed or of squares.
struct Kind {
  OrderTerms terms;
  HalfSums half;
  SharedBound bound;

  Kind(std::vector<double> values, std::uint32_t order, std::uint32_t low, Signs signs,
       const CombRules& rules)
      : terms(std::move(values), order, signs, rules),
        half(terms.values(), low, terms.count() - (order - low), signs, terms.kept_of_equal()) {}

  /// The position that a walk may skip to, since all sums on the way are too small.
  std::optional<std::uint32_t> hopeless(std::span<const std::uint32_t> upper) const {
    double size = 0.0;  // of the members above
    for (auto i = static_cast<std::uint32_t>(upper.size()); i-- > 0;) {
      const std::uint32_t position = half.members() + 1 + i;
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

/// For one call of run().
class Search {
 public:
  Search(const SearchedElements& elements, std::uint32_t low, const CombRules& rules);

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
  const SearchedElements& elements_;
  std::vector<std::unique_ptr<Kind>> kinds_;

  mutable std::mutex mutex_;  // guards what follows
  SuffixWalk walk_;
  SuffixWalk::Block last_;
  bool dealing_ = true;
  bool stopped_ = false;
  std::exception_ptr failure_;
};

std::uint32_t longest_block(std::uint32_t signs) {
  return std::max(1U, steps_per_block >> std::min(signs, 31U));
}

Search::Search(const SearchedElements& elements, std::uint32_t low, const CombRules& rules)
    : rules_(rules),
      elements_(elements),
      walk_(elements.count(), elements.order(), low, longest_block(elements.order() - low)) {
  const auto add_kind = [&](double CombElement::*value, Signs signs) {
    kinds_.push_back(std::make_unique<Kind>(elements.values(value), elements.order(), low, signs, rules));
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

/// The combinations up to the last one of the last block that was dealt out.
double Search::tested() const {
  const std::lock_guard lock(mutex_);
  return elements_.met_before(last_.upper, last_.end);
}

OrderResult Search::run(unsigned threads, const OrderPoll& poll) {
  Finds own;
  for (const auto& kind : kinds_) own.emplace_back(kind->terms, kind->half, rules_, kind->bound);
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
    return elements_.translated(best.matches());
  };
  OrderResult result{.sums = matches(0), .squares = {}, .tested = 0.0, .stopped = stopped_};
  if (kinds_.size() > 1) result.squares = matches(1);
  result.tested = stopped_ ? tested() : elements_.all();
  return result;
}

}  // namespace

OrderResult search_by_position(const SearchedElements& elements, std::uint32_t low, const CombRules& rules,
                               unsigned threads, const OrderPoll& poll) {
  return Search(elements, low, rules).run(threads, poll);
}

}  // namespace kov
