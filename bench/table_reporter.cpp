#include "bench/table_reporter.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <string_view>

#include "bench/figures.h"
#include "bench/table_text.h"

namespace kov {
namespace {

// Widths of the columns; the first is flush left, the others right.
constexpr std::array<std::size_t, 5> widths = {58, 18, 14, 14, 8};

std::string figure_text(double figure) {
  if (figure == 0.0) return "";
  return fixed_text(figure, figure < 1000.0 ? 1 : 0);
}

bool smaller_is_better(std::string_view unit) { return unit.find('/') != unit.size() - 2; }

std::string ratio_text(const std::string& unit, double figure, double literal) {
  if (literal == 0.0) return "";
  return fixed_text(smaller_is_better(unit) ? literal / figure : figure / literal, 2);
}

}  // namespace

TableReporter::Row& TableReporter::row(const std::string& name, const std::string& unit) {
  const auto same = [&](const Row& row) { return row.name == name && row.unit == unit; };
  const auto found = std::find_if(rows_.begin(), rows_.end(), same);
  if (found != rows_.end()) return *found;
  return rows_.emplace_back(Row{.name = name, .unit = unit});
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    std::string name = run.run_name.function_name;
    const bool literal = name.ends_with(literal_suffix);
    if (literal) name.erase(name.size() - std::string_view(literal_suffix).size());
    for (const auto& [unit, counter] : run.counters) {
      (literal ? row(name, unit).literal : row(name, unit).figure) = counter.value;
    }
  }
}

void TableReporter::print(std::ostream& out) const {
  using Line = std::array<std::string, widths.size()>;
  print_line(out, widths, Line{"benchmark", "unit", "engine", "literal", "ratio"});
  for (const Row& row : rows_) {
    print_line(out, widths,
               Line{row.name, row.unit, figure_text(row.figure), figure_text(row.literal),
                    ratio_text(row.unit, row.figure, row.literal)});
  }
}

}  // namespace kov
