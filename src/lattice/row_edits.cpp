#include "lattice/row_edits.h"

#include <algorithm>
#include <array>
#include <optional>

#include "lattice/row_range.h"
#include "text/integers.h"

namespace kov {
namespace {

/// The highest row below the last a rows. Nothing when that lies below every 32-bit step.
std::optional<std::int32_t> row_below_last(const Lmap& lmap, std::int32_t a) noexcept {
  const std::int64_t row = std::int64_t{lmap.nlast()} - a;
  if (row < lowest_int) return std::nullopt;
  return static_cast<std::int32_t>(std::min(row, std::int64_t{highest_int}));
}

/// Erases the rows onto which a ... b fall when they start at c. Where they run past the highest step,
/// they go on at the lowest.
void erase_destination(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) noexcept {
  const std::int32_t end = wrapping_add(c, wrapping_subtract(b, a));
  if (c <= end) {
    lmap.erase_rows(c, end);
  } else {
    lmap.erase_rows(c, highest_int);
    lmap.erase_rows(lowest_int, end);
  }
}

/// The points inside any of the boxes.
class PointsToKeep {
 public:
  explicit PointsToKeep(std::span<const KeyBox> boxes) noexcept : boxes_(boxes) {}

  /// Certain without a look at the points.
  bool all(const Row& row) const noexcept {
    return std::any_of(boxes_.begin(), boxes_.end(),
                       [&row](const KeyBox& box) { return RowRange(row, box).all(); });
  }
  bool none(const Row& row) const noexcept {
    return std::all_of(boxes_.begin(), boxes_.end(),
                       [&row](const KeyBox& box) { return RowRange(row, box).none(); });
  }
  std::size_t choose(const Row& row, std::size_t block, Lmap::BlockIndices& indices) const noexcept {
    std::array<std::uint8_t, block_capacity> flags{};
    const auto inside = std::span(flags).first(row.block(block).size());
    for (const KeyBox& box : boxes_) mark(row, block, box, inside);
    std::size_t count = 0;
    for (std::uint32_t i = 0; i < inside.size(); ++i) {
      indices[count] = i;
      count += inside[i];
    }
    return count;
  }

 private:
  static void mark(const Row& row, std::size_t block, const KeyBox& box,
                   std::span<std::uint8_t> inside) noexcept {
    const RowRange range(row, box);
    if (range.none()) return;
    std::array<std::uint8_t, block_capacity> flags;
    const auto in_box = std::span(flags).first(inside.size());
    range.mark(row.block(block), 0, in_box);
    for (std::size_t i = 0; i < inside.size(); ++i) inside[i] |= in_box[i];
  }

  std::span<const KeyBox> boxes_;
};

}  // namespace

RowBounds GetLowUpBound_2(const Lmap& lmap, std::int32_t a, std::int32_t b, Messages& messages) {
  const Lmap::Cursor lower = lmap.row_begin(a);
  if (a <= b) return {lower, lmap.row_end(b)};
  messages.error("GetLowUpBound_2: a=" + int_text(a) + " " + int_text(b) + "=b\nupbound set to lobound");
  return {lower, lower};
}

void DeleteRows(Lmap& lmap, std::int32_t a, std::int32_t b) noexcept { lmap.erase_rows(a, b); }

void DeleteRowsOutsideRange(Lmap& lmap, std::int32_t a, std::int32_t b, std::span<const KeyBox> keep,
                            Messages& messages) {
  GetLowUpBound_2(lmap, a, b, messages);
  const PointsToKeep kept(keep);
  std::int64_t next = a;
  while (next <= b) {
    const Lmap::Rows left = lmap.rows(static_cast<std::int32_t>(next), b);
    if (left.begin() == left.end()) return;
    const Row& row = *left.begin();
    const std::int32_t n = row.n();
    next = std::int64_t{n} + 1;
    if (kept.all(row)) continue;
    if (kept.none(row)) {
      lmap.erase_rows(n, n);
    } else {
      lmap.keep_chosen(n, n, [&kept](const Row& some, std::size_t block, Lmap::BlockIndices& indices) {
        return kept.choose(some, block, indices);
      });
    }
  }
}

void ChooseLast(Lmap& lmap, std::int32_t a, std::int32_t b) noexcept {
  if (a <= 0 || lmap.empty()) return;
  const std::int32_t first_kept = wrapping_add(wrapping_subtract(lmap.nlast(), a), 1);
  DeleteAllButLast(lmap, a);
  lmap.shift_steps(wrapping_subtract(b, first_kept));
}

void MoveAll(Lmap& lmap, std::int32_t a) noexcept { lmap.shift_steps(a); }

void MovePart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) noexcept {
  if (a > b) return;
  Lmap part = lmap.extract_rows(a, b);
  erase_destination(lmap, a, b, c);
  part.shift_steps(wrapping_subtract(c, a));
  lmap.merge_new(part);
}

void CopyPart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) {
  if (a > b) return;
  Lmap copy = lmap.copy_rows(a, b);
  copy.shift_steps(wrapping_subtract(c, a));
  copy.erase_rows(a, b);
  Lmap source = lmap.extract_rows(a, b);
  erase_destination(lmap, a, b, c);
  lmap.merge_new(source);
  lmap.merge_new(copy);
}

void DeleteAllButLast(Lmap& lmap, std::int32_t a) noexcept {
  if (lmap.empty()) return;
  if (const auto last_erased = row_below_last(lmap, a)) DeleteRows(lmap, lowest_int, *last_erased);
}

void DeleteOutsideExceptLast(Lmap& lmap, std::int32_t a, std::span<const KeyBox> keep, Messages& messages) {
  if (lmap.empty()) return;
  if (const auto last_treated = row_below_last(lmap, a)) {
    DeleteRowsOutsideRange(lmap, lowest_int, *last_treated, keep, messages);
  }
}

void ChoosePart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) noexcept {
  if (a > b) return;
  Lmap chosen = lmap.extract_rows(a, b);
  chosen.shift_steps(wrapping_subtract(c, a));
  lmap.swap(chosen);
}

}  // namespace kov
