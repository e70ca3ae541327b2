#include "tools/element_search.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

#include "tools/choice_work.h"

namespace kov {
namespace {

/// What is done between two polls: about a millisecond.
constexpr std::size_t comparisons_per_poll = std::size_t{1} << 18;
/// Less is done sooner than a thread is started.
constexpr std::size_t comparisons_worth_a_thread = std::size_t{1} << 18;

/// For one call of run().
class HalvesSearch {
 public:
  HalvesSearch(const SearchedElements& elements, std::uint32_t low, std::uint32_t middle,
               const CombRules& rules, unsigned threads, const OrderPoll& poll);

  OrderResult run();

 private:
  /// A thread's own finds, one for each kind.
  using Finds = std::vector<MergeSearch>;

  /// False when it was given up; nothing of it is kept then.
  bool settle(const TopWalk::Choice& choice);
  /// Does all meetings, on as many threads as finds.
  void meet_all(const TopWalk::Choice& choice, const ChoiceWork& work, std::vector<Finds>& finds);
  /// Takes meetings until there are none; after_meeting is told how many comparisons each one took.
  template <class AfterMeeting>
  void take_meetings(const TopWalk::Choice& choice, const ChoiceWork& work, Finds& finds,
                     const AfterMeeting& after_meeting);
  void note_failure() noexcept;
  void count_and_poll(std::size_t comparisons);
  void poll();
  bool complete() const;
  OrderResult result() const;

  const CombRules& rules_;
  const SearchedElements& elements_;
  const std::uint32_t halved_;
  const unsigned threads_;
  const OrderPoll& poll_;
  std::vector<std::unique_ptr<HalvedSums>> kinds_;

  double settled_ = 0.0;
  bool stop_ = false;
  std::size_t since_poll_ = 0;

  std::atomic<std::size_t> next_meeting_ = 0;
  /// The meetings that are left are not to be done.
  std::atomic<bool> given_up_ = false;
  std::mutex mutex_;  // guards failure_
  std::exception_ptr failure_;
};

HalvesSearch::HalvesSearch(const SearchedElements& elements, std::uint32_t low, std::uint32_t middle,
                           const CombRules& rules, unsigned threads, const OrderPoll& poll)
    : rules_(rules), elements_(elements), halved_(low + middle), threads_(threads), poll_(poll) {
  const auto add_kind = [&](double CombElement::*value, Signs signs) {
    kinds_.push_back(std::make_unique<HalvedSums>(elements.values(value), elements.order(), low, middle,
                                                  signs, rules, threads));
  };
  add_kind(&CombElement::re, Signs::plus_and_minus);
  if (rules.squares) add_kind(&CombElement::square, Signs::plus);
}

OrderResult HalvesSearch::run() {
  TopWalk walk(elements_.count(), elements_.order(), halved_);
  for (auto choice = walk.next(); choice && !stop_ && settle(*choice); choice = walk.next()) {
    settled_ = elements_.met_before(choice->members, halved_);
    if (complete()) break;
    if (!stop_) poll();
  }
  return result();
}

bool HalvesSearch::settle(const TopWalk::Choice& choice) {
  const ChoiceWork work(kinds_, choice);
  Finds own;
  for (const auto& kind : kinds_) {
    own.emplace_back(kind->terms, kind->halves, rules_, kind->bound, kind->best);
  }
  std::vector<Finds> finds(work.comparisons() < comparisons_worth_a_thread ? 1 : threads_, own);
  meet_all(choice, work, finds);
  if (failure_) std::rethrow_exception(failure_);
  if (given_up_) return false;
  for (std::size_t i = 0; i < kinds_.size(); ++i) {
    for (const Finds& thread : finds) kinds_[i]->best.merge(thread[i].found());
    kinds_[i]->bound.lower_to(kinds_[i]->best.bound());
  }
  return true;
}

void HalvesSearch::meet_all(const TopWalk::Choice& choice, const ChoiceWork& work,
                            std::vector<Finds>& finds) {
  struct Helpers {
    std::atomic<bool>& given_up;
    std::vector<std::thread> threads;
    bool done = false;
    ~Helpers() {
      // What the poll throws leaves the helpers nothing to do.
      if (!done) given_up = true;
      for (std::thread& thread : threads) thread.join();
    }
  };
  next_meeting_ = 0;
  Helpers helpers{.given_up = given_up_, .threads = {}};
  helpers.threads.reserve(finds.size());
  for (std::size_t i = 1; i < finds.size(); ++i) {
    helpers.threads.emplace_back([&, i]() noexcept {
      try {
        take_meetings(choice, work, finds[i], [](std::size_t) {});
      } catch (...) {
        note_failure();
      }
    });
  }
  take_meetings(choice, work, finds.front(),
                [this](std::size_t comparisons) { count_and_poll(comparisons); });
  helpers.done = true;
}

template <class AfterMeeting>
void HalvesSearch::take_meetings(const TopWalk::Choice& choice, const ChoiceWork& work, Finds& finds,
                                 const AfterMeeting& after_meeting) {
  for (std::size_t i = next_meeting_++; i < work.size() && !given_up_; i = next_meeting_++) {
    const ChoiceWork::Meeting meeting = work[i];
    finds[meeting.kind].search(meeting.partials, choice, meeting.middle_members);
    after_meeting(meeting.comparisons);
  }
}

void HalvesSearch::note_failure() noexcept {
  const std::lock_guard lock(mutex_);
  failure_ = std::current_exception();
  given_up_ = true;
}

void HalvesSearch::count_and_poll(std::size_t comparisons) {
  since_poll_ += comparisons;
  if (since_poll_ < comparisons_per_poll || stop_) return;
  poll();
  // Something has to be settled.
  if (stop_ && settled_ > 0.0) given_up_ = true;
}

void HalvesSearch::poll() {
  since_poll_ = 0;
  stop_ = !poll_(settled_);
}

bool HalvesSearch::complete() const {
  return std::all_of(kinds_.begin(), kinds_.end(), [](const auto& kind) { return kind->complete(); });
}

OrderResult HalvesSearch::result() const {
  OrderResult result{.sums = elements_.translated(kinds_.front()->best.matches()),
                     .squares = {},
                     .tested = stop_ ? settled_ : elements_.all(),
                     .stopped = stop_};
  if (kinds_.size() > 1) result.squares = elements_.translated(kinds_.back()->best.matches());
  return result;
}

}  // namespace

OrderResult search_by_element(const SearchedElements& elements, std::uint32_t low, std::uint32_t middle,
                              const CombRules& rules, unsigned threads, const OrderPoll& poll) {
  return HalvesSearch(elements, low, middle, rules, threads, poll).run();
}

}  // namespace kov
