#include "bench/step_table.h"

#include <algorithm>
#include <functional>

#include "bench/table_text.h"

namespace kov {
namespace {

struct Column {
  std::string heading;
  std::size_t width;
  std::function<std::string(const StepFigures&)> cell;
};

std::string thousands_text(std::size_t points) {
  return fixed_text(static_cast<double>(points) / 1000.0, points < 10000 ? 1 : 0);
}

std::string times_text(double ratio) { return fixed_text(ratio, ratio < 10.0 ? 1 : 0); }

std::vector<Column> time_columns() {
  return {{"step", 34, [](const auto& step) { return step.name; }},
          {"1000 pts", 9, [](const auto& step) { return thousands_text(step.points); }},
          {"literal", 9, [](const auto& step) { return fixed_text(step.literal, 0); }},
          {"of 1000", 9, [](const auto& step) { return thousands_text(step.literal_points); }},
          {"1 thr", 7, [](const auto& step) { return fixed_text(step.one_thread, 2); }},
          {"2 thr", 7, [](const auto& step) { return fixed_text(step.two_threads, 2); }},
          {"x 1 thr", 9, [](const auto& step) { return times_text(step.literal / step.one_thread); }},
          {"x 2 thr", 9, [](const auto& step) { return times_text(step.literal / step.two_threads); }}};
}

std::vector<Column> flint_columns() {
  // Blank where there is no such product.
  const auto ratio = [](const StepFigures& step, double engine) {
    return step.flint ? times_text(*step.flint / engine) : std::string();
  };
  return {
      {"FLINT", 9, [](const auto& step) { return step.flint ? fixed_text(*step.flint, 1) : std::string(); }},
      {"x 1 thr", 9, [ratio](const auto& step) { return ratio(step, step.one_thread); }},
      {"x 2 thr", 9, [ratio](const auto& step) { return ratio(step, step.two_threads); }}};
}

std::vector<Column> memory_columns(const MemoryBandwidth& bandwidth) {
  const auto copy = [bandwidth](const StepFigures& step) {
    return 1e9 * (step.read_bytes + step.written_bytes) / bandwidth.copy;
  };
  const auto pages = [bandwidth](const StepFigures& step) {
    return 1e9 * step.written_bytes / bandwidth.fresh;
  };
  return {{"B/pt", 8, [](const auto& step) { return fixed_text(step.bytes_per_point, 1); }},
          {"copy", 7, [copy](const auto& step) { return fixed_text(copy(step), 2); }},
          {"2 thr/copy", 12, [copy](const auto& step) { return times_text(step.two_threads / copy(step)); }},
          {"pages", 7, [pages](const auto& step) { return fixed_text(pages(step), 2); }}};
}

std::string gigabytes_text(double bytes) { return fixed_text(bytes / 1e9, 1) + " GB/s"; }

}  // namespace

void StepTable::print(std::ostream& out, const MemoryBandwidth& bandwidth) const {
  std::vector<Column> columns = time_columns();
  const auto append = [&](const std::vector<Column>& more) {
    columns.insert(columns.end(), more.begin(), more.end());
  };
  if (std::any_of(rows_.begin(), rows_.end(),
                  [](const StepFigures& step) { return step.flint.has_value(); })) {
    append(flint_columns());
  }
  append(memory_columns(bandwidth));

  std::vector<std::size_t> widths;
  std::vector<std::string> cells;
  for (const Column& column : columns) {
    widths.push_back(column.width);
    cells.push_back(column.heading);
  }
  out << "Memory, " << bandwidth.threads << " threads: a copy reads and writes "
      << gigabytes_text(bandwidth.copy) << ", a sum reads " << gigabytes_text(bandwidth.read)
      << ", new pages are written with " << gigabytes_text(bandwidth.fresh) << ".\n"
      << "Steps, ns a contribution (of the processor with one thread, of the clock with two).\n"
      << "copy: what a copy of the bytes of both rows takes; pages: what writing the new row into new pages "
         "takes.\n\n";
  print_line(out, widths, cells);
  for (const StepFigures& step : rows_) {
    std::transform(columns.begin(), columns.end(), cells.begin(),
                   [&](const Column& column) { return column.cell(step); });
    print_line(out, widths, cells);
  }
  out << '\n';
}

}  // namespace kov
