#include "sums/sums2_grid.h"

#include "sums/sums_display.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr int block_rows = static_cast<int>(sum_quantity_count);

/// Which block and which quantity a row shows.
struct BlockRow {
  std::size_t block;
  std::size_t quantity;

  explicit BlockRow(int row)
      : block(static_cast<std::size_t>((row - 1) / block_rows)),
        quantity(static_cast<std::size_t>((row - 1) % block_rows)) {}
};

}  // namespace

int Sums2Grid::column_count() const { return 1 + static_cast<int>(columns_.size()); }

int Sums2Grid::row_count() const { return 1 + block_rows * static_cast<int>(Slsums2_n_count); }

void Sums2Grid::show() {
  columns_.clear();
  sums2_.create(lmap_, cph_, user_);
  numbers_ = NumberDisplay::read(cph_);
  const S2map& sums = sums2_.sums();
  for (auto column = sums.begin(); column != sums.end(); ++column) columns_.push_back(column);
  check_column_count(column_count(), 1 + static_cast<int>(sums.size()), user_.messages);
  changed();
}

std::string Sums2Grid::text(GridCell cell) const {
  if (cell.column == 0) return cell.row == 0 ? "              l->" : row_label(cell.row);
  if (cell.column >= column_count()) return "";
  const auto column = columns_[static_cast<std::size_t>(cell.column - 1)];
  return cell.row == 0 ? int_text(column->first) : result(cell);
}

/// Empty for the steps that are chosen only when the store has points.
std::string Sums2Grid::row_label(int row) const {
  const BlockRow content(row);
  const std::string quantity = sum_quantity_names[content.quantity];
  if (content.block == 0) return "all n: " + quantity;
  if (!sums2_.created()) return "";
  return "n=" + int_text(sums2_.par().n[content.block]) + ": " + quantity;
}

std::string Sums2Grid::result(GridCell cell) const {
  const BlockRow content(cell.row);
  const auto column = columns_[static_cast<std::size_t>(cell.column - 1)];
  const CountSums2_to_l::Block& block = column->second.block[content.block];
  return content.quantity == sum_cnt ? int_text(block.count) : numbers_.text(block.sum[content.quantity - 1]);
}

void check_column_count(int icol, int column_count, Messages& messages) {
  if (icol == column_count) return;
  messages.warning("icol=" + int_text(icol) + " != " + int_text(column_count) + "=F1->Slsums2->ColCount");
}

}  // namespace kov
