#include "bench/table_reporter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ostream>
#include <string_view>

#include "bench/figures.h"

namespace kov {
namespace {

// Widths of the columns; the first is flush left, the others right.
constexpr std::array<std::size_t, 5> widths = {58, 18, 14, 14, 8};

std::string fixed_text(double value, int decimals) {
  std::array<char, 400> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals);
  return {digits.data(), end.ptr};
}

std::string figure_text(double figure) {
  if (figure == 0.0) return "";
  return fixed_text(figure, figure < 1000.0 ? 1 : 0);
}

void print_row(std::ostream& out, const std::array<std::string, widths.size()>& cells) {
  std::string line = cells[0];
  line.resize(std::max(line.size(), widths[0]), ' ');
  for (std::size_t column = 1; column < cells.size(); ++column) {
    const std::size_t blanks = widths[column] - std::min(widths[column], cells[column].size());
    line += std::string(blanks, ' ') + cells[column];
  }
  line.erase(line.find_last_not_of(' ') + 1);
  out << line << '\n';
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

void TableReporter::Finalize() {
  std::ostream& out = GetOutputStream();
  print_row(out, {"benchmark", "unit", "engine", "literal", "ratio"});
  for (const Row& row : rows_) {
    print_row(out, {row.name, row.unit, figure_text(row.figure), figure_text(row.literal),
                    ratio_text(row.unit, row.figure, row.literal)});
  }
  out.flush();
}

}  // namespace kov
