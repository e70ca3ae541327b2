#include "graphs/calc_gc.h"

#include <cmath>
#include <exception>
#include <string>

#include "graphs/g1_curves.h"
#include "graphs/too_few_pixels.h"
#include "numbers/errors.h"
#include "sums/sum_progress.h"
#include "text/integers.h"

namespace kov {
namespace {

/// A yes or no for each range.
using RangeFlags = std::array<bool, g1_range_count>;

bool any_checked(const G1Checks& checked, std::size_t range) {
  const auto first = checked.begin() + static_cast<std::ptrdiff_t>(range * g1_quantity_count);
  return std::any_of(first, first + g1_quantity_count, [](bool box) { return box; });
}

RangeFlags taken_ranges(const G1Task& task) {
  const bool common = task.cph.kmi("Graph1_quick_xscale_r12_common") != 0;
  return {common || any_checked(task.checked, 0), common || any_checked(task.checked, 1)};
}

std::int32_t x_of(const Lk& key, const G1Task& task, std::size_t range) {
  return key.coo[static_cast<std::size_t>(task.table.icoo_along_x_in_g[range])];
}

/// Calls visit(place, ranges it lies inside) for every point inside a taken range. False when Break was
/// pressed.
template <class Visit>
bool walk(const G1Task& task, const RangeFlags& taken, Progress& progress, std::string_view done,
          const Visit& visit) {
  SumProgress walked(progress, static_cast<std::int64_t>(task.lmap.count()),
                     task.cph.kmi("Graph_EntryCountPerDisplay"), done);
  const auto end = task.lmap.end();
  for (auto place = task.lmap.begin(); place != end; ++place) {
    const RangeFlags inside = {taken[0] && task.table.range[0].contains(place.key()),
                               taken[1] && task.table.range[1].contains(place.key())};
    if (inside[0] || inside[1]) visit(place, inside);
    if (!walked.advance()) return false;
  }
  return true;
}

bool find_x_interval(const G1Task& task, const RangeFlags& taken, G1Par& par, Progress& progress) {
  return walk(task, taken, progress, "checked", [&](const Lmap::Cursor& place, const RangeFlags& inside) {
    for (std::size_t range = 0; range < g1_range_count; ++range) {
      if (inside[range]) par.widen_x(x_of(place.key(), task, range));
    }
  });
}

using PointValues = std::array<double, g1_quantity_count>;

PointValues values_of(const cotyp& q) {
  const double re = to_double(q.re);
  const double im = to_double(q.im);
  return {re, im, to_double(qq(q)), std::hypot(re, im), 1};
}

void add_point(G1Range& sums, std::size_t column, std::int32_t x, const PointValues& values) {
  ++sums.count;
  for (std::size_t quantity = 0; quantity < g1_quantity_count; ++quantity) {
    sums.curve[quantity].at[column] += values[quantity];
  }
  std::optional<std::int32_t>& first = sums.first_x[column];
  first = std::min(first.value_or(x), x);
}

bool bin_points(const G1Task& task, const RangeFlags& taken, G1Par& par, Progress& progress) {
  return walk(task, taken, progress, "summed up", [&](const Lmap::Cursor& place, const RangeFlags& inside) {
    const PointValues values = values_of(place.quantity());
    for (std::size_t range = 0; range < g1_range_count; ++range) {
      if (!inside[range]) continue;
      const std::int32_t x = x_of(place.key(), task, range);
      add_point(par.range[range], par.column_of(x), x, values);
    }
  });
}

void take_size(const G1Task& task, G1Par& par, Messages& messages) {
  par.hpixcount = std::max(task.width, 0);
  par.vpixcount = std::max(task.height, 0);
  if (par.hpixcount <= G1Chainsize) return;
  messages.warning("Calc_gc_from_lgl: hpixcount=" + int_text(par.hpixcount) +
                   " set to G1Chainsize=" + int_text(G1Chainsize));
  par.hpixcount = G1Chainsize;
}

G1Outcome calculate(const G1Task& task, G1Par& par, Messages& messages, Progress& progress) {
  if (task.lmap.empty()) return G1Outcome::store_empty;
  take_size(task, par, messages);
  if (par.hpixcount == 0 || par.vpixcount == 0) return G1Outcome::no_pixel;
  if (std::none_of(task.checked.begin(), task.checked.end(), [](bool box) { return box; })) {
    return G1Outcome::no_box_checked;
  }
  const RangeFlags taken = taken_ranges(task);
  // Around both walks, so that a Break in the first one also counts for whatever runs this.
  const ProgressBox box(progress, 0, static_cast<std::int64_t>(task.lmap.count()));
  if (!find_x_interval(task, taken, par, progress)) return G1Outcome::broken;
  ++par.xmax;
  --par.xmin;
  if (par.xcount() < 1) return G1Outcome::no_different_x;
  par.pix_per_icoo = static_cast<double>(par.hpixcount) / static_cast<double>(par.xcount());
  warn_of_too_few_pixels("x in Graph 1", par.pix_per_icoo, one_sum_per_pixel, task.cph, messages);
  if (!bin_points(task, taken, par, progress)) return G1Outcome::broken;
  divide_curves(par, task.cph.kmi("Graph1_divmode"));
  find_y_intervals(par);
  treat_second_steps(par, task.cph.kmi("Graph1_BarDbl_Fill0"));
  return G1Outcome::calculated;
}

void report_numeric_error(const std::exception& error, Messages& messages) {
  messages.error(std::string(" MathError when calculating G1Par: \n") + error.what());
}

}  // namespace

G1Outcome Calc_gc_from_lgl(const G1Task& task, G1Par& par, Messages& messages, Progress& progress) {
  par.clear();
  try {
    const G1Outcome outcome = calculate(task, par, messages, progress);
    if (outcome != G1Outcome::calculated) par.clear();
    return outcome;
  } catch (...) {
    par.clear();
    throw;
  }
}

G1Outcome calculate_and_report(const G1Task& task, G1Par& par, Messages& messages, Progress& progress) {
  try {
    return Calc_gc_from_lgl(task, par, messages, progress);
  } catch (const math_error& error) {
    report_numeric_error(error, messages);
  } catch (const ratyp_error& error) {
    report_numeric_error(error, messages);
  } catch (...) {
    messages.error("Error when calculating G1Par");
  }
  return G1Outcome::failed;
}

}  // namespace kov
