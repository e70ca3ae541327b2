#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "config/cphclass.h"
#include "config/window_facts.h"
#include "interact/grid_model.h"
#include "interact/messages.h"

namespace kov {

/// Slconfig: the catalogue, a row for each parameter in the order of the keywords, whose value can be
/// edited. The cells are a copy, made when the page is shown; an edit goes into the catalogue at once.
///
/// An edit is taken by Enter and wherever the selection or the keyboard leaves the cell. What is no integer
/// within the parameter's bounds is undone without a word.
class ConfigGrid final : public GridModel {
 public:
  /// All three must outlive the grid, and the catalogue must be defined. The window's place and size are
  /// defaults of parameters.
  ConfigGrid(cphclass& cph, const WindowFacts& window, Messages& messages);

  int column_count() const override { return 5; }
  int row_count() const override { return 1 + static_cast<int>(rows_.size()); }
  std::string text(GridCell cell) const override;
  bool editable(GridCell cell) const override { return cell.column == value_column && cell.row >= 1; }
  int default_column_width() const override { return 64; }
  int column_width(int column) const override;

  /// Fills the grid from the catalogue; an edit that was not taken yet is given up.
  void show() override;
  bool key(const GridKey& key) override;

  /// Writes description and value of the row's keyword into its cells. A keyword that the catalogue does
  /// not hold is reported as an error, and the cells stay.
  void UpdateSlconfigCellFromcph(int row);
  /// Sets the row's parameter to what stands in its value cell; what is no integer within its bounds is
  /// replaced by the catalogue's value. An unknown keyword is reported as an error.
  void CorrectSlconfigCellOrUpdatecph(int row);

  /// What the mouse over a row is told: keyword, range, default, and whether the parameter belongs to the
  /// uniform configuration. Empty for the headings.
  std::string hint(GridCell cell) const;

  /// Called with the keyword whenever a parameter was set here, to the value that it had, too: it is to be
  /// applied at once.
  void set_parameter_changed(std::function<void(const std::string& keyword)> parameter_changed) {
    parameter_changed_ = std::move(parameter_changed);
  }

 protected:
  void take_edit(GridCell cell, const std::string& text) override;

 private:
  static constexpr int keyword_column = 2;
  static constexpr int value_column = 4;

  /// The cells of a row that are not counted out of its number.
  struct Row {
    std::string uniform_mark;
    std::string keyword;
    std::string description;
    std::string value;
  };

  void fill();
  /// The parameter whose keyword stands in a row; null, and reported in the name of function, when the
  /// catalogue does not hold it. The heading's keyword is none.
  const MMI* parameter_of(int row, const char* function) const;
  Row& cells(int row) { return rows_[static_cast<std::size_t>(row - 1)]; }

  cphclass& cph_;
  const WindowFacts& window_;
  Messages& messages_;
  std::vector<Row> rows_;
  std::function<void(const std::string& keyword)> parameter_changed_;
};

}  // namespace kov
