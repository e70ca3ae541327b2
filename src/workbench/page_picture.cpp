#include "workbench/page_picture.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "datafile/date_time.h"
#include "graphs/range_title.h"
#include "text/integers.h"

namespace kov {
namespace {

struct GraphFacts {
  const char* name;
  /// The beginnings of the keywords that its picture follows.
  std::array<std::string_view, 3> keywords;
};

constexpr GraphFacts graph1_facts{"Graph1", {"Graph_", "Graph1_", "Graph1_"}};
constexpr GraphFacts graph2_facts{"Graph2", {"Graph_", "Graph2_", "Graph2a_"}};

const GraphFacts& facts_of(Page page) { return page == Page::graph2 ? graph2_facts : graph1_facts; }

/// "Graph_num_precision=4", one a line.
std::string parameters_text(const Kmap& parameters, const GraphFacts& facts) {
  std::string text;
  for (const auto& [keyword, parameter] : parameters) {
    const auto begins = [&name = keyword](std::string_view beginning) { return name.starts_with(beginning); };
    if (std::ranges::none_of(facts.keywords, begins)) continue;
    text += (text.empty() ? "" : "\n") + keyword + "=" + int_text(parameter.i);
  }
  return text;
}

std::string range_table_text(const RangeTables& tables) {
  const RangeTable& table = tables.current_table();
  std::string text = "table " + int_text(tables.current_index());
  for (std::size_t range = 0; range < table.range.size(); ++range) {
    text += "\nRange " + int_text(static_cast<std::int64_t>(range) + 1) +
            ": x=" + coordinate_name(table.icoo_along_x_in_g[range]) +
            " y=" + coordinate_name(table.icoo_along_y_in_g2[range]) + ", " + range_title(table.range[range]);
  }
  return text;
}

}  // namespace

std::vector<Note> picture_notes(const Workbench& workbench, Page page, std::time_t time) {
  const GraphFacts& facts = facts_of(page);
  const Document& document = workbench.document;
  const std::string file = workbench.file.chosen ? workbench.file.name() : "";
  std::vector<Note> notes = {{"Title", file.empty() ? facts.name : file + " - " + facts.name}};
  if (!file.empty()) notes.push_back({"Source", file});
  notes.push_back({"Range table", range_table_text(document.ranges)});
  notes.push_back({"Creation Time", date_time_text(time)});
  notes.push_back({"Parameters", parameters_text(document.cph.kmap(), facts)});
  return notes;
}

Picture page_picture(Workbench& workbench, Pages& pages, Page page, int width, int height,
                     const TextMeasure& measure) {
  const bool first = page == Page::graph1;
  // Calculated for the size of this picture as soon as it is shown, not twice.
  first ? pages.graph1().fit(width, height, measure) : pages.graph2().fit(width, height, measure);
  pages.show(page);
  Picture picture =
      first ? pages.graph1().picture(width, height, measure) : pages.graph2().picture(width, height, measure);
  picture.notes = picture_notes(workbench, page, std::time(nullptr));
  return picture;
}

}  // namespace kov
