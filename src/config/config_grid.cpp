#include "config/config_grid.h"

#include <array>
#include <string_view>

#include "config/definition_table.h"
#include "interact/grid_keys.h"
#include "interact/integer_question.h"
#include "text/integers.h"

namespace kov {
namespace {

struct Column {
  const char* heading;
  int width;
};

// Wide enough for the longest keyword and description.
constexpr std::array<Column, 5> columns{{
    {"row", 40},
    {"r", 24},
    {"          keyword", 240},
    {"          description", 500},
    {"     i", 96},
}};

constexpr std::string_view typed_characters = "0123456789+-";

const Column& column_at(int column) { return columns[static_cast<std::size_t>(column)]; }

}  // namespace

ConfigGrid::ConfigGrid(cphclass& cph, const WindowFacts& window, Messages& messages)
    : cph_(cph), window_(window), messages_(messages) {
  fill();
  move_to({value_column, 1});
}

int ConfigGrid::column_width(int column) const { return column_at(column).width; }

void ConfigGrid::show() {
  forget_edit();
  fill();
  changed();
}

void ConfigGrid::fill() {
  rows_.clear();
  for (const auto& [keyword, parameter] : cph_.kmap()) {
    rows_.push_back({parameter.ucfg ? "u" : "", keyword, parameter.description, int_text(parameter.i)});
  }
}

std::string ConfigGrid::text(GridCell cell) const {
  if (cell.row == 0) return column_at(cell.column).heading;
  const Row& row = rows_[static_cast<std::size_t>(cell.row - 1)];
  switch (cell.column) {
    case 0:
      return int_text(cell.row);
    case 1:
      return row.uniform_mark;
    case keyword_column:
      return row.keyword;
    case value_column:
      return row.value;
    default:
      return row.description;
  }
}

std::string ConfigGrid::hint(GridCell cell) const {
  if (cell.row == 0) return {};
  const std::string keyword = text({keyword_column, cell.row});
  for (const auto& [defined, parameter] : definition_table(window_)) {
    if (defined != keyword) continue;
    return keyword + range_text({parameter.min, parameter.max}, 'i') + "\ndefault: " + int_text(parameter.i) +
           (parameter.ucfg ? "\nu: part of the uniform configuration" : "");
  }
  return {};
}

bool ConfigGrid::key(const GridKey& key) {
  if (passes_to_editor(key, editable(selected()) ? typed_characters : "")) return false;
  if (key.name == GridKey::Name::enter) {
    leave();
  } else if (key.name == GridKey::Name::escape) {
    forget_edit();
    changed();
  } else {
    messages_.beep();
  }
  return true;
}

void ConfigGrid::take_edit(GridCell cell, const std::string& text) {
  cells(cell.row).value = text;
  CorrectSlconfigCellOrUpdatecph(cell.row);
}

const MMI* ConfigGrid::parameter_of(int row, const char* function) const {
  const auto found = cph_.kmap().find(text({keyword_column, row}));
  if (found != cph_.kmap().end()) return &found->second;
  messages_.error(std::string(function) + ":\nKeyword not found in kmap");
  return nullptr;
}

void ConfigGrid::UpdateSlconfigCellFromcph(int row) {
  const MMI* const parameter = parameter_of(row, "UpdateSlconfigCellFromcph");
  if (parameter == nullptr) return;
  cells(row).description = parameter->description;
  cells(row).value = int_text(parameter->i);
}

void ConfigGrid::CorrectSlconfigCellOrUpdatecph(int row) {
  const MMI* const parameter = parameter_of(row, "CorrectSlconfigCellOrUpdatecph");
  if (parameter == nullptr) return;
  const auto value = parse_int32(trimmed(cells(row).value));
  const bool acceptable = value && parameter->min <= *value && *value <= parameter->max;
  // A copy: what the owner applies may fill the grid anew.
  const std::string keyword = cells(row).keyword;
  if (acceptable) cph_.setkmi_1(keyword, *value);
  UpdateSlconfigCellFromcph(row);
  if (acceptable && parameter_changed_) parameter_changed_(keyword);
}

}  // namespace kov
