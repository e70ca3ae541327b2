#include "algadd/algadd_run.h"

#include <optional>

#include "algadd/absorbing_barrier.h"
#include "algadd/step_loop.h"
#include "algadd/table_edits.h"
#include "interact/integer_question.h"
#include "text/integers.h"

namespace kov {

namespace {

std::optional<std::int32_t> step_count(const RunRequest& request, std::int32_t nlast, const cphclass& cph,
                                       Questions& questions) {
  if (request.steps >= 0) return request.steps;
  const std::string prompt = request.intro + AbsorbingBarrier::read(cph).text() +
                             "\nFor i iterations of  Algadd" + int_text(request.table) +
                             "  from n=" + int_text(nlast) + " on";
  return ask_integer(questions, "Perform Algadd", prompt, cph.kmi("Algadd_DefaultStepCount"), {.min = 0});
}

/// Keeps the duration and the steps of a run, on every way out of it.
class RunRecord {
 public:
  RunRecord(Algadd& algadd, const StepLoop& loop, const RunClock& clock)
      : algadd_(algadd), loop_(loop), clock_(clock), start_(clock.now()) {}
  ~RunRecord() {
    const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(clock_.now() - start_);
    algadd_.last_run = {elapsed.count(), loop_.steps_performed()};
  }
  RunRecord(const RunRecord&) = delete;
  RunRecord& operator=(const RunRecord&) = delete;

 private:
  Algadd& algadd_;
  const StepLoop& loop_;
  const RunClock& clock_;
  RunClock::Time start_;
};

/// The message of the error that ended the loop, if one did.
std::optional<std::string> run_recorded(Algadd& algadd, StepLoop& loop, const RunClock& clock) {
  const RunRecord record(algadd, loop, clock);
  loop.run();
  return loop.failure();
}

}  // namespace

bool perform_algadd(Algadd& algadd, Lmap& lmap, const cphclass& cph, std::span<const KeyBox> keep,
                    const RunRequest& request, User user, const RunClock& clock, const RunThreads& threads) {
  if (lmap.empty()) return false;
  const std::optional<std::int32_t> steps = step_count(request, lmap.nlast(), cph, user.questions);
  if (!steps || *steps == 0) return false;

  apply_zero_entry_rule(algadd, request.table, cph);
  StepLoop loop(algadd, lmap, cph, keep, request, *steps, threads, user);
  if (const auto failure = run_recorded(algadd, loop, clock)) user.messages.error(*failure);
  return true;
}

}  // namespace kov
