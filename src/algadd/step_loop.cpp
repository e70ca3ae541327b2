#include "algadd/step_loop.h"

#include <algorithm>

#include "algadd/delete_smallest.h"
#include "algadd/row_step.h"
#include "lattice/lattice_status.h"
#include "lattice/row_edits.h"
#include "numbers/errors.h"
#include "text/grouping.h"
#include "text/integers.h"

namespace kov {

namespace {

std::string mode_label(RunMode mode) {
  switch (mode) {
    case RunMode::keep:
      return "Algadd";
    case RunMode::all_but_last:
      return "d. Algadd";
    case RunMode::outside_ranges:
      return "o.d. Algadd";
    case RunMode::tracking:
      break;
  }
  return "D:0  Algadd:";
}

// Sorts the exception in flight into the four beginnings of a run's last message.
std::string failure_beginning() {
  try {
    throw;
  } catch (const floating_overflow&) {
    return "Break because of floating point overflow in Algadd\n";
  } catch (const math_error& error) {
    return std::string("Break because of MathError in Algadd:\n") + error.what();
  } catch (const program_error& error) {
    return error.what();
  } catch (...) {
    return "Break because of Algadd error";
  }
}

}  // namespace

StepLoop::StepLoop(const Algadd& algadd, Lmap& lmap, const cphclass& cph, std::span<const KeyBox> keep,
                   const RunRequest& request, std::int32_t steps, const RunThreads& threads, User user)
    : algadd_(algadd),
      lmap_(lmap),
      cph_(cph),
      keep_(keep),
      table_(request.table),
      mode_(request.mode),
      user_(user),
      used_length_(algadd.used_length(request.table)),
      workers_(threads.count),
      part_size_(threads.part),
      barrier_(AbsorbingBarrier::read(cph)),
      limits_(RunLimits::read(cph)),
      nlast_(lmap.nlast()),
      end_(std::int64_t{nlast_} + steps),
      i_(nlast_),
      label_(mode_label(request.mode)) {}

void StepLoop::run() {
  const ProgressBox box(user_.progress, nlast_, end_ - 1);
  try {
    for (; i_ < end_ && !stop_; ++i_) step();
  } catch (...) {
    drop_incomplete_row();
    failure_ = failure_beginning() + "\n\nLast n=" + int_text(i_ + 1) +
               " deleted, because not necessarily complete.";
  }
  // Behind the handler: the last row is whole, and in mode 1 all there is; a message must not cost it.
  if (out_of_bounds_ && !failure_) report_memory_stop();
}

void StepLoop::step() {
  build_row();
  lmap_.merge_new(destination_);
  measure();
  if (limits_.passed_any(bytes_)) show_headline();
  if (mode_ != RunMode::keep) thin_out();
  out_of_bounds_ = bytes_ > limits_.maximum;
  if (user_.progress.break_requested() || out_of_bounds_) stop_ = true;
  if (bytes_ > limits_.display) limits_.display = bytes_ + limits_.display_step;
  user_.progress.at(i_);
}

void StepLoop::build_row() {
  if (i_ > highest_int) return;
  const auto row = static_cast<std::int32_t>(i_);
  destination_ =
      RowStep(workers_, part_size_).destinations(algadd_, table_, used_length_, lmap_, row, user_.progress);
  barrier_.apply(destination_, wrapping_add(row, 1));
}

void StepLoop::show_headline() {
  user_.progress.headline(label_ + " : " + int_text(i_ + 1) + "=n, all lattices have " +
                          int_text(static_cast<std::int64_t>(lmap_.count())) + " points, " +
                          kilobyte_text(lmap_.estimated_bytes()) + " KB used");
}

void StepLoop::thin_out() {
  if (mode_ == RunMode::all_but_last) {
    DeleteRows(lmap_, 0, last_done_row());
  } else {
    delete_outside_ranges();
    if (mode_ == RunMode::tracking && bytes_ > limits_.tracking) delete_smallest();
  }
  measure();
}

void StepLoop::delete_outside_ranges() {
  const std::int32_t last = last_done_row();
  if (limits_.first_deletable_row > last) return;
  DeleteRowsOutsideRange(lmap_, limits_.first_deletable_row, last, keep_, user_.messages);
}

void StepLoop::delete_smallest() {
  if (cph_.kmi("Algadd_TM_BeepOnDelSmallest") != 0) user_.messages.beep();
  delete_smallest_of_nlast(lmap_, cph_.kmi("DelSmallPercent_Default"), user_.progress);
  label_ = "D:" + int_text(++deletions_) + " Algadd:";
}

void StepLoop::report_memory_stop() const {
  user_.messages.information(status_line(lmap_) + memory_stop_text);
}

void StepLoop::drop_incomplete_row() {
  destination_.clear();
  if (i_ > highest_int) return;
  const std::int32_t row = wrapping_add(static_cast<std::int32_t>(i_), 1);
  DeleteRows(lmap_, row, row);
}

std::int32_t StepLoop::last_done_row() const {
  return static_cast<std::int32_t>(std::min<std::int64_t>(i_, highest_int));
}

}  // namespace kov
