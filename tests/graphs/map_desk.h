#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "config/cphclass.h"
#include "graphs/graph2_page.h"
#include "interact/scripted_user.h"
#include "lattice/lmap.h"
#include "numbers/floating_text.h"
#include "sums/range_tables.h"
#include "support/plain_measure.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {

/// What a map is made of, with a scripted person whose reports are kept. Range 1 takes every point, with k1
/// along x and n along y; Range 2 those of lattice 2, with k2 along x and k1 along y. Plotted lines are not
/// reported.
struct MapDesk {
  MapDesk() {
    cph.InitPrgPar(WindowFacts{});
    set("Graph2_LineCountPerDisplay", 10000);
    RangeTable& table = tables.current_table();
    table.range[0] = {Lk::filled(lowest_int), Lk::filled(highest_int)};
    table.range[1] = table.range[0];
    table.range[1].min.coo[l_position] = 2;
    table.range[1].max.coo[l_position] = 2;
    table.icoo_along_x_in_g = {1, 2};
    table.icoo_along_y_in_g2 = {0, 1};
  }

  std::vector<std::string> reports;
  ScriptedUser person{[this](const std::string& report) { reports.push_back(report); },
                      ScriptedUser::Captions::every};
  cphclass cph{person};
  Lmap lmap;
  RangeTables tables;
  CurveStates states{};
  int radio_index = 0;
  PlainMeasure measure;
  std::string file_name = "walk.aa1";
  Graph2Page page{{lmap, tables, cph, states, radio_index, [this] { return file_name; }}, person.user()};

  void set(const std::string& keyword, std::int32_t value) { cph.setkmi_1(keyword, value); }
  /// A value that only a line of a data file can give.
  void force(const std::string& keyword, const std::string& value) {
    const std::string fields = " " + value + " " + value + " " + value + " 0";
    Tokens rest(fields);
    cph.read_configuration_line(keyword, rest, true);
  }
  void point(std::int32_t n, std::int32_t k1, const cotyp& q) { lmap.set(Lk::at(0, n, k1), q); }
  std::vector<std::string> take_reports() { return std::exchange(reports, {}); }

  /// Calculates for an image of this size; the text that stands in place of the map.
  std::string calculate(ValueMap& map, ImageSize image, int radio = 0) {
    return Calc_v_from_lgl(lmap, tables.current_table(), MapChoice::of_radio(radio), image, cph,
                           person.user(), map);
  }
};

/// Every pixel of a map with a value, as "column,row:value column,row:value ...".
inline std::string pixels_text(const ValueMap& map) {
  std::string text;
  for (int column = 0; column < map.grid.width(); ++column) {
    for (int row = 0; row < map.grid.height(); ++row) {
      const double value = map.grid.value(column, row);
      if (!ValueGrid::is_value(value)) continue;
      text +=
          (text.empty() ? "" : " ") + int_text(column) + "," + int_text(row) + ":" + floating_text(value, 6);
    }
  }
  return text;
}

using Reports = std::vector<std::string>;

}  // namespace kov
