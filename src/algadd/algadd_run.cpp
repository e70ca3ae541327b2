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

}  // namespace

bool perform_algadd(Algadd& algadd, Lmap& lmap, const cphclass& cph, std::span<const KeyBox> keep,
                    const RunRequest& request, User user, const RunClock& clock) {
  if (lmap.empty()) return false;
  const std::optional<std::int32_t> steps = step_count(request, lmap.nlast(), cph, user.questions);
  if (!steps || *steps == 0) return false;

  const RunClock::Time start = clock.now();
  apply_zero_entry_rule(algadd, request.table, cph);
  StepLoop loop(algadd, lmap, cph, keep, request, *steps, user);
  loop.run();
  const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(clock.now() - start);
  algadd.last_run = {elapsed.count(), loop.steps_performed()};
  if (loop.failure()) user.messages.error(*loop.failure());
  return true;
}

}  // namespace kov
