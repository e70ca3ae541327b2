// How large rows and columns are: from the model and the font, never from the texts of the cells.
#include <QHeaderView>
#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "widgets/cell_painter.h"
#include "widgets/grid_adapter.h"
#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {
namespace {

constexpr double model_dots_per_inch = 96;
/// The heading column is fitted to the headings of so many rows at most.
constexpr int measured_headings = 64;
/// What a model's width may make of the heading column, which never scrolls away. Its texts may need more.
constexpr int widest_heading = 240;
/// Pixels around the text of a row.
constexpr int row_padding = 8;

}  // namespace

/// A width that a table can have, whatever a parameter says.
int StringGrid::scaled(int pixels) const {
  const double width = pixels * (logicalDpiX() / model_dots_per_inch);
  return qRound(std::clamp(width, 1.0, static_cast<double>(horizontalHeader()->maximumSectionSize())));
}

void StringGrid::apply_sizes() {
  apply_row_height();
  apply_column_widths();
  apply_heading_width();
}

void StringGrid::apply_row_height() {
  const int height = fontMetrics().height() + row_padding;
  if (verticalHeader()->defaultSectionSize() == height) return;
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

void StringGrid::set_fitted_row(int row) {
  fitted_row_ = row;
  apply_column_widths();
}

int StringGrid::wanted_width(int column) const {
  const int width = scaled(model_.column_width(column));
  if (fitted_row_ < 0) return width;
  const QString text = to_qt(model_.text({column, fitted_row_}));
  // Besides the margins there is the line between columns, and the advance is a rounded figure.
  return std::max(width, fontMetrics().horizontalAdvance(text) + 2 * cell_margin + 2);
}

/// A column that a person has made wider stays so until the model asks for another width.
void StringGrid::apply_column_widths() {
  const int usual = scaled(model_.default_column_width());
  const int count = adapter_->columnCount();
  std::vector<int> widths(static_cast<std::size_t>(count));
  for (int c = 0; c < count; ++c) {
    widths[static_cast<std::size_t>(c)] = wanted_width(c + model_.fixed_columns());
  }
  if (usual != horizontalHeader()->defaultSectionSize()) {
    horizontalHeader()->setDefaultSectionSize(usual);  // and every column gets this width
    widths_told_.clear();
  }
  for (std::size_t c = 0; c < widths.size(); ++c) {
    const bool is_told = c < widths_told_.size() && widths_told_[c] == widths[c];
    if (!is_told) setColumnWidth(static_cast<int>(c), widths[c]);
  }
  widths_told_ = std::move(widths);
}

void StringGrid::apply_heading_width() {
  if (verticalHeader()->isHidden()) return;
  int width = scaled(std::min(model_.column_width(0), widest_heading));
  const int rows = std::min(model_.row_count(), measured_headings);
  for (int row = 0; row < rows; ++row) {
    const int text_width = fontMetrics().horizontalAdvance(to_qt(model_.text({0, row})));
    width = std::max(width, text_width + 3 * cell_margin);
  }
  if (verticalHeader()->width() == width && verticalHeader()->minimumWidth() == width) return;
  verticalHeader()->setFixedWidth(width);
  updateGeometries();
}

}  // namespace kov
