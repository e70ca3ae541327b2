#include "batch/printer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "batch/print_graph1.h"
#include "graphs/graph2_table.h"
#include "lattice/lattice_status.h"
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

void print_grid(const GridModel& grid, Output& output) {
  const int last_column = grid.column_count() - 1;
  for (int row = 0; row < grid.row_count(); ++row) {
    for (int column = 0; column <= last_column; ++column) {
      output.write(grid.text({column, row}));
      output.write(column < last_column ? "\t" : "\n");
    }
  }
}

/// Every pixel of the map into which a point was summed.
void print_graph2(Pages& pages, const PictureSize& size, Output& output) {
  pages.graph2().set_image({size.width, size.height});
  pages.show(Page::graph2);
  output.write("column\trow\tvalue\tcolour\n");
  const Graph2Drawing* drawing = pages.graph2().drawing();
  if (drawing == nullptr) return;
  write_map_pixels(*drawing, [&](const std::string& line) { output.write(line); });
}

struct NamedPrinter {
  std::string_view what;
  void (*print)(Workbench& workbench, User user, Output& output);
};

constexpr std::array<NamedPrinter, 5> printers{{
    {"status", print_status},
    {"caption", print_caption},
    {"comment", print_comment},
    {"lattice", print_lattice},
    {"menu", print_menu},
}};

struct LabelledPage {
  std::string_view what;
  Page page;
};

constexpr std::array<LabelledPage, 5> labelled_pages{{
    {"label Algadd", Page::algadd},
    {"label Sums1", Page::sums1},
    {"label Sums2", Page::sums2},
    {"label Graph1", Page::graph1},
    {"label Graph2", Page::graph2},
}};

struct SizedPrinter {
  std::string_view what;
  void (*print)(Pages& pages, const PictureSize& size, Output& output);
};

/// Graphs, which may have a size behind their name.
constexpr std::array<SizedPrinter, 2> sized_printers{{
    {"Graph1", print_graph1},
    {"Graph2", print_graph2},
}};

template <class Row, std::size_t size>
const Row* find_row(const std::array<Row, size>& table, std::string_view what) {
  const auto found =
      std::find_if(table.begin(), table.end(), [&](const Row& row) { return row.what == what; });
  return found == table.end() ? nullptr : &*found;
}

/// Null where it is none of these, or where what stands behind is no size.
Printer find_sized_printer(std::string_view what, Pages& pages) {
  const std::size_t end = std::min(what.find(' '), what.size());
  const SizedPrinter* printer = find_row(sized_printers, what.substr(0, end));
  if (printer == nullptr) return nullptr;
  const auto size = end < what.size() ? parse_picture_size(what.substr(end + 1)) : PictureSize{};
  if (!size) return nullptr;
  return [print = printer->print, &pages, size = *size](Output& output) { print(pages, size, output); };
}

}  // namespace

Printer find_printer(std::string_view what, Workbench& workbench, Pages& pages, User user) {
  if (const NamedPrinter* printer = find_row(printers, what)) {
    return [print = printer->print, &workbench, user](Output& output) { print(workbench, user, output); };
  }
  if (const LabelledPage* labelled = find_row(labelled_pages, what)) {
    return [page = labelled->page, &pages](Output& output) {
      pages.show(page);
      output.write(pages.label(page) + "\n");
    };
  }
  if (Printer sized = find_sized_printer(what, pages)) return sized;
  if (!Pages::is_grid(what)) return nullptr;
  return [page = Pages::page_of(what), grid = pages.grid(what), &pages](Output& output) {
    pages.show(page);
    print_grid(*grid, output);
  };
}

std::vector<std::string_view> printer_names() {
  std::vector<std::string_view> names;
  names.reserve(printers.size());
  for (const NamedPrinter& printer : printers) names.push_back(printer.what);
  return names;
}

}  // namespace kov
