#pragma once

#include <string>
#include <utility>
#include <vector>

#include "config/cphclass.h"
#include "interact/scripted_user.h"
#include "lattice/lmap.h"
#include "sums/range_tables.h"
#include "sums/sums1_page.h"

namespace kov {

/// What the grids of the sums work on, with a scripted person whose reports are kept.
struct SumsDesk {
  SumsDesk() { cph.InitPrgPar(WindowFacts{}); }

  std::vector<std::string> reports;
  ScriptedUser person{[this](const std::string& report) { reports.push_back(report); },
                      ScriptedUser::Captions::every};
  cphclass cph{person};
  Lmap lmap;
  RangeTables tables;
  Sums1Page page{lmap, tables, cph};

  User user() { return person.user(); }
  std::vector<std::string> take_reports() { return std::exchange(reports, {}); }

  /// Points with the quantity 1 at k1 = 0 ... count - 1 of lattice 0 and step 0.
  void fill_line(std::int32_t count) {
    for (std::int32_t k1 = 0; k1 < count; ++k1) lmap.set(Lk::at(0, 0, k1), 1);
  }
  /// A store that sums up to an overflow.
  void fill_with_overflow() { lmap.set(Lk::at(0, 0, 0), cotyp::floating(1e200, 0.0)); }
};

using Reports = std::vector<std::string>;

}  // namespace kov
