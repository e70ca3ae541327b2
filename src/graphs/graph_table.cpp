#include "graphs/graph_table.h"

#include <string_view>

#include "numbers/floating_text.h"

namespace kov {
namespace {

std::string quoted_where_needed(std::string_view name) {
  if (name.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(name);
  std::string quoted = "\"";
  for (const char c : name) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

template <class Cell, class Text>
void append_line(std::string& text, const std::vector<Cell>& cells, const Text& text_of) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i != 0) text += ',';
    text += text_of(cells[i]);
  }
  text += "\r\n";
}

}  // namespace

std::string csv_text(const GraphTable& table) {
  std::string text;
  append_line(text, table.heading, quoted_where_needed);
  for (const std::vector<double>& row : table.rows) append_line(text, row, exact_text);
  return text;
}

}  // namespace kov
