#include "sums/sums_display.h"

namespace kov {
namespace {

constexpr std::array<const char*, Slsums1_columns> sum_headings = {"", "          Sum 1", "          Sum 2",
                                                                   "     Sum total"};
constexpr std::array<const char*, 1 + sum_row_count> form_labels = {"s   : ", "s/s1: ", "s/s2: ", "s/st: "};

/// Which form and which quantity a row shows.
struct FormRow {
  std::size_t form;
  std::size_t quantity;

  explicit FormRow(int row)
      : form(static_cast<std::size_t>(row - 1) / sum_quantity_count),
        quantity(static_cast<std::size_t>(row - 1) % sum_quantity_count) {}
};

}  // namespace

std::string Slsums1_heading(int column) { return sum_headings[static_cast<std::size_t>(column)]; }

std::string Slsums1_label(int row) {
  const FormRow content(row);
  return std::string(form_labels[content.form]) + sum_quantity_names[content.quantity];
}

std::string Slsums1_result(const RangeSums& sums, const NumberDisplay& numbers, int column, int row) {
  const FormRow content(row);
  const SumRow& sum = sums[static_cast<std::size_t>(column - 1)];
  if (content.form == 0) return numbers.text(sum.value[content.quantity]);
  const std::optional<cotyp>& ratio = sum.ratio[content.form - 1][content.quantity];
  return ratio ? numbers.text(*ratio) : std::string();
}

}  // namespace kov
