#pragma once

#include "config/cphclass.h"
#include "graphs/g1par.h"
#include "interact/messages.h"
#include "interact/progress.h"
#include "lattice/lmap.h"
#include "sums/range_table.h"

namespace kov {

/// How the calculation of Graph1 ended. Only `calculated` leaves curves.
enum class G1Outcome { store_empty, no_pixel, no_box_checked, no_different_x, broken, failed, calculated };

/// What is calculated, and from what; to be gone before any of it.
struct G1Task {
  const Lmap& lmap;
  const RangeTable& table;
  const cphclass& cph;
  const G1Checks& checked;
  /// Of the image, in pixels.
  int width = 0;
  int height = 0;
};

/// Sums the points inside the ranges up by pixel columns along x, in two walks over the store in key order,
/// as the parameters Graph1_... say. A range takes part when one of its boxes is checked; with
/// Graph1_quick_xscale_r12_common both do. After every Graph_EntryCountPerDisplay points the caption is shown
/// and Break is asked for, which it is after 10,000 points at the latest. Throws floating_overflow or
/// math_error when a sum or a quotient is not finite. Any end but `calculated`, and any exception, leaves par
/// cleared.
G1Outcome Calc_gc_from_lgl(const G1Task& task, G1Par& par, Messages& messages, Progress& progress);

/// Likewise; a failure is reported instead: " MathError when calculating G1Par: \n" and its text for a
/// numeric error, else "Error when calculating G1Par".
G1Outcome calculate_and_report(const G1Task& task, G1Par& par, Messages& messages, Progress& progress);

}  // namespace kov
