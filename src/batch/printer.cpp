#include "batch/printer.h"

#include <algorithm>
#include <array>
#include <string>

#include "lattice/lattice_status.h"
#include "sums/sums_display.h"
#include "text/integers.h"
#include "workbench/command.h"

namespace kov {
namespace {

void print_status(Workbench& workbench, User, Output& output) {
  output.write(status_line(workbench.document.lmap) + "\n");
}

void print_caption(Workbench&, User user, Output& output) { output.write(user.progress.caption() + "\n"); }

/// The comment's lines end with CR LF, the last one perhaps without.
void print_comment(Workbench& workbench, User, Output& output) {
  for (std::string_view rest = workbench.document.comment; !rest.empty();) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, end);
    if (end < rest.size() && line.ends_with('\r')) line.remove_suffix(1);
    output.write(line);
    output.write("\n");
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

/// Every point in the columns of the List page: running number, quantity, l, n, k1 ... k30.
void print_lattice(Workbench& workbench, User, Output& output) {
  const Lmap& lmap = workbench.document.lmap;
  std::int64_t number = 0;
  for (auto point = lmap.begin(); point != lmap.end(); ++point) {
    std::string line = int_text(++number) + "\t" + to_text(point.quantity());
    for (const int position : listed_positions) {
      line += '\t';
      line += int_text(point.key().coo[static_cast<std::size_t>(position)]);
    }
    line += '\n';
    output.write(line);
  }
}

void print_menu(Workbench& workbench, User, Output& output) {
  for (const Command& command : commands()) {
    output.write(std::string(command.menu) + "/" + item_name(command.caption) + "\t" +
                 live_caption(command, workbench) + "\t" + std::string(command.shortcut) + "\t" +
                 (is_enabled(command, workbench) ? "enabled" : "disabled") + "\n");
  }
}

void print_Slsums1(Workbench& workbench, User user, Output& output) {
  const Document& document = workbench.document;
  workbench.show_page(Page::sums1);
  workbench.sums1.sum_up_and_report(document.lmap, document.ranges.current_table(), document.cph, user);
  for (int row = 0; row < Slsums1_rows; ++row) {
    for (int column = 0; column < Slsums1_columns; ++column) {
      output.write(workbench.sums1.Slsums1_text(column, row));
      output.write(column + 1 < Slsums1_columns ? "\t" : "\n");
    }
  }
}

struct NamedPrinter {
  std::string_view what;
  Printer print;
};

constexpr std::array<NamedPrinter, 6> printers{{
    {"status", print_status},
    {"caption", print_caption},
    {"comment", print_comment},
    {"lattice", print_lattice},
    {"menu", print_menu},
    {"Slsums1", print_Slsums1},
}};

}  // namespace

Printer find_printer(std::string_view what) {
  const auto found = std::find_if(printers.begin(), printers.end(),
                                  [&](const NamedPrinter& printer) { return printer.what == what; });
  return found == printers.end() ? nullptr : found->print;
}

std::vector<std::string_view> printer_names() {
  std::vector<std::string_view> names;
  names.reserve(printers.size());
  for (const NamedPrinter& printer : printers) names.push_back(printer.what);
  return names;
}

}  // namespace kov
