#include "sums/sums1.h"

#include <exception>

#include "numbers/errors.h"
#include "sums/sums_display.h"

namespace kov {
namespace {

constexpr const char* invitation = " Double clíck on table \n or close this menu \n to sum up ";

void report_numeric_error(const std::exception& error, Messages& messages) {
  messages.error(std::string(" MathError when creating Sums1: \n") + error.what());
}

}  // namespace

SumOutcome Sums1::sum_up(const Lmap& lmap, const RangeTable& table, const cphclass& cph, Progress& progress) {
  if (lmap.empty()) {
    display_.reset();
    label_.clear();
    return SumOutcome::store_empty;
  }
  label_ = invitation;
  const std::int64_t points_per_display = cph.kmi("Sums_EntryCountPerDisplay");
  const std::optional<RangeSums> sums = sum_ranges(lmap, table.range, points_per_display, progress);
  if (!sums) {
    display_.reset();
    return SumOutcome::broken;
  }
  display_ = Display{.sums = *sums, .numbers = NumberDisplay::read(cph)};
  return SumOutcome::displayed;
}

SumOutcome Sums1::sum_up_and_report(const Lmap& lmap, const RangeTable& table, const cphclass& cph,
                                    User user) {
  try {
    return sum_up(lmap, table, cph, user.progress);
  } catch (const math_error& error) {
    report_numeric_error(error, user.messages);
  } catch (const ratyp_error& error) {
    report_numeric_error(error, user.messages);
  } catch (...) {
    user.messages.error("Error when creating Sums1");
  }
  return SumOutcome::failed;
}

std::string Sums1::Slsums1_text(int column, int row) const {
  if (row == 0) return Slsums1_heading(column);
  if (column == 0) return Slsums1_label(row);
  return display_ ? Slsums1_result(display_->sums, display_->numbers, column, row) : std::string();
}

}  // namespace kov
