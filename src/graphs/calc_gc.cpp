#include "graphs/calc_gc.h"

#include <algorithm>
#include <array>
#include <exception>
#include <numeric>
#include <optional>
#include <span>
#include <string>

#include "graphs/g1_curves.h"
#include "graphs/too_few_pixels.h"
#include "lattice/block_points.h"
#include "lattice/row_range.h"
#include "numbers/errors.h"
#include "numbers/vector_dispatch.h"
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

std::size_t x_position(const G1Task& task, std::size_t range) {
  return static_cast<std::size_t>(task.table.icoo_along_x_in_g[range]);
}

/// Which points of a row lie inside the taken ranges.
class RowRanges {
 public:
  RowRanges(const G1Task& task, const RangeFlags& taken, const Row& row)
      : taken_(taken), inside_{RowRange(row, task.table.range[0]), RowRange(row, task.table.range[1])} {}

  bool none(std::size_t range) const { return !taken_[range] || inside_[range].none(); }
  bool none() const { return none(0) && none(1); }
  bool all(std::size_t range) const { return taken_[range] && inside_[range].all(); }
  const RowRange& of(std::size_t range) const { return inside_[range]; }

 private:
  RangeFlags taken_;
  std::array<RowRange, g1_range_count> inside_;
};

/// Some of the points of a block, in key order.
struct Chunk {
  static constexpr std::size_t most_points = 1024;

  const Row& row;
  const Block& block;
  std::size_t first;
  std::size_t count;
};

/// Calls visit(chunk, ranges of its row) for all rows with points inside a taken range, unless visit_row(row,
/// ranges) says that the row is done. False when Break was pressed.
template <class VisitRow, class Visit>
bool walk(const G1Task& task, const RangeFlags& taken, Progress& progress, std::string_view done,
          const VisitRow& visit_row, const Visit& visit) {
  SumProgress walked(progress, static_cast<std::int64_t>(task.lmap.count()),
                     task.cph.kmi("Graph_EntryCountPerDisplay"), done);
  for (const Row& row : task.lmap.rows()) {
    const RowRanges ranges(task, taken, row);
    if (ranges.none() || visit_row(row, ranges)) {
      if (!walked.advance(static_cast<std::int64_t>(row.count()))) return false;
      continue;
    }
    for (std::size_t block = 0; block < row.block_count(); ++block) {
      const std::size_t size = row.block(block).size();
      for (std::size_t first = 0; first < size;) {
        const auto until_check = static_cast<std::size_t>(walked.until_check());
        const std::size_t count = std::min({size - first, Chunk::most_points, until_check});
        visit(Chunk{row, row.block(block), first, count}, ranges);
        first += count;
        if (!walked.advance(static_cast<std::int64_t>(count))) return false;
      }
    }
  }
  return true;
}

/// The x values of the points of a chunk that lie inside a range, and their places in the chunk.
struct PointsInside {
  PointsInside(const G1Task& task, const Chunk& chunk, const RowRange& inside, std::size_t range) {
    decode_coordinates(chunk.row, chunk.block, x_position(task, range), chunk.first,
                       std::span(x).first(chunk.count));
    std::iota(place.begin(), place.begin() + static_cast<std::ptrdiff_t>(chunk.count), std::uint16_t{0});
    count = chunk.count;
    if (inside.all()) return;
    std::array<std::uint8_t, Chunk::most_points> flags;
    inside.mark(chunk.block, chunk.first, std::span(flags).first(chunk.count));
    count = 0;
    for (std::size_t i = 0; i < chunk.count; ++i) {
      x[count] = x[i];
      place[count] = static_cast<std::uint16_t>(i);
      count += flags[i];
    }
  }

  std::size_t count;
  std::array<std::int32_t, Chunk::most_points> x;
  std::array<std::uint16_t, Chunk::most_points> place;
};

/// By the box of a row that lies inside as a whole, where that is the box of its points.
bool widen_by_row(const G1Task& task, const Row& row, const RowRanges& ranges, G1Par& par) {
  const auto clear = [&](std::size_t range) {
    return ranges.none(range) || (ranges.all(range) && row.box_is_exact());
  };
  if (!clear(0) || !clear(1)) return false;
  for (std::size_t range = 0; range < g1_range_count; ++range) {
    if (ranges.none(range)) continue;
    par.widen_x(row.box().min.coo[x_position(task, range)]);
    par.widen_x(row.box().max.coo[x_position(task, range)]);
  }
  return true;
}

bool find_x_interval(const G1Task& task, const RangeFlags& taken, G1Par& par, Progress& progress) {
  return walk(
      task, taken, progress, "checked",
      [&](const Row& row, const RowRanges& ranges) { return widen_by_row(task, row, ranges, par); },
      [&](const Chunk& chunk, const RowRanges& ranges) {
        for (std::size_t range = 0; range < g1_range_count; ++range) {
          if (ranges.none(range)) continue;
          const PointsInside points(task, chunk, ranges.of(range), range);
          for (std::size_t i = 0; i < points.count; ++i) par.widen_x(points.x[i]);
        }
      });
}

/// What is summed up of the points of a chunk, quantity by quantity but for their number.
struct ChunkValues {
  explicit ChunkValues(const Chunk& chunk) {
    const auto part = [&chunk](std::array<double, Chunk::most_points>& values) {
      return std::span(values).first(chunk.count);
    };
    chunk.block.re().decode(chunk.first, part(of[g1_qre]));
    chunk.block.im().decode(chunk.first, part(of[g1_qim]));
    decode_squares(chunk.block, chunk.first, part(of[g1_qq]));
    decode_magnitudes(chunk.block, chunk.first, part(of[g1_qa]));
  }

  std::array<std::array<double, Chunk::most_points>, g1_cntAt> of;
};

using Columns = std::array<std::int32_t, Chunk::most_points>;

/// par.column_of() of each x. Distances have at most 33 bits, and are the same as doubles.
void find_columns(const G1Par& par, const PointsInside& points, Columns& columns) {
  run_loop([&, min = static_cast<double>(par.xmin), scale = par.pix_per_icoo]() KOV_INLINE {
    for (std::size_t i = 0; i < points.count; ++i) {
      columns[i] = static_cast<std::int32_t>((static_cast<double>(points.x[i]) - min) * scale);
    }
  });
}

/// Adds the points first ... end - 1, which all lie in one column.
void add_to_column(G1Range& sums, std::size_t column, const PointsInside& points, const ChunkValues& values,
                   std::size_t first, std::size_t end) {
  std::array<double, g1_cntAt> sum;
  for (std::size_t quantity = 0; quantity < sum.size(); ++quantity) {
    sum[quantity] = sums.curve[quantity].at[column];
  }
  std::int32_t smallest_x = points.x[first];
  for (std::size_t i = first; i < end; ++i) {
    const std::size_t place = points.place[i];
    for (std::size_t quantity = 0; quantity < sum.size(); ++quantity) {
      sum[quantity] += values.of[quantity][place];
    }
    smallest_x = std::min(smallest_x, points.x[i]);
  }
  for (std::size_t quantity = 0; quantity < sum.size(); ++quantity) {
    sums.curve[quantity].at[column] = sum[quantity];
  }
  sums.curve[g1_cntAt].at[column] += static_cast<double>(end - first);
  std::optional<std::int32_t>& first_x = sums.first_x[column];
  if (!first_x || smallest_x < *first_x) first_x = smallest_x;
}

void add_points(const G1Par& par, G1Range& sums, const PointsInside& points, const ChunkValues& values) {
  Columns columns;
  find_columns(par, points, columns);
  sums.count += static_cast<std::int64_t>(points.count);
  for (std::size_t first = 0; first < points.count;) {
    std::size_t end = first + 1;
    while (end < points.count && columns[end] == columns[first]) ++end;
    add_to_column(sums, static_cast<std::size_t>(columns[first]), points, values, first, end);
    first = end;
  }
}

/// True when both ranges take every point, along the same x: their curves are then the same.
bool ranges_are_alike(const G1Task& task, const RangeFlags& taken) {
  if (x_position(task, 0) != x_position(task, 1)) return false;
  const Lmap::Rows rows = task.lmap.rows();
  return std::all_of(rows.begin(), rows.end(), [&](const Row& row) {
    const RowRanges ranges(task, taken, row);
    return ranges.all(0) && ranges.all(1);
  });
}

bool bin_points(const G1Task& task, const RangeFlags& taken, G1Par& par, Progress& progress) {
  const bool alike = ranges_are_alike(task, taken);
  const bool complete = walk(
      task, taken, progress, "summed up", [](const Row&, const RowRanges&) { return false; },
      [&](const Chunk& chunk, const RowRanges& ranges) {
        const ChunkValues values(chunk);
        for (std::size_t range = 0; range < (alike ? 1 : g1_range_count); ++range) {
          if (ranges.none(range)) continue;
          add_points(par, par.range[range], PointsInside(task, chunk, ranges.of(range), range), values);
        }
      });
  if (alike) par.range[1] = par.range[0];
  return complete;
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
