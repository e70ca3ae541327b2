#pragma once

#include <cstdint>
#include <span>

#include "interact/messages.h"
#include "lattice/key_box.h"
#include "lattice/lmap.h"

namespace kov {

// Deleting, moving and choosing rows: a row is the set of points with one value of n, over all
// lattices. Rows move as they are, so that only CopyPart needs memory; when there is none it throws
// std::bad_alloc and leaves the store as it was. Steps that leave 32 bits wrap. A count of rows, as in
// "the last a rows", includes rows without points: the last a rows are those with n > nlast - a.

/// A pair of bounds in key order: rows a ... b lie in [lower, upper).
struct RowBounds {
  Lmap::Cursor lower;
  Lmap::Cursor upper;
};

/// The bounds of the rows a <= n <= b. When a > b, "GetLowUpBound_2: a=A B=b\nupbound set to lobound" is
/// reported as an error and the range is empty.
RowBounds GetLowUpBound_2(const Lmap& lmap, std::int32_t a, std::int32_t b, Messages& messages);

/// Erases every point with a <= n <= b; nothing, without a message, when a > b.
void DeleteRows(Lmap& lmap, std::int32_t a, std::int32_t b) noexcept;

/// In the rows a <= n <= b, erases every point that lies in none of the boxes. When a > b,
/// GetLowUpBound_2 reports it and nothing is erased.
void DeleteRowsOutsideRange(Lmap& lmap, std::int32_t a, std::int32_t b, std::span<const KeyBox> keep,
                            Messages& messages);

/// Keeps the last a rows and moves them so that the first of them lands at row b; erases the rest.
/// Nothing when a <= 0 or the store is empty.
void ChooseLast(Lmap& lmap, std::int32_t a, std::int32_t b) noexcept;

/// Moves every point from n to n + a.
void MoveAll(Lmap& lmap, std::int32_t a) noexcept;

/// Moves the rows a ... b so that they start at c, over what was there; other rows stay. Nothing when
/// a > b.
void MovePart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) noexcept;

/// Copies the rows a ... b so that the copy starts at c. Rows a ... b stay as they are, gaps included: what
/// would be copied into them is dropped. The other destination rows are erased first. Nothing when a > b.
void CopyPart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c);

/// Erases all but the last a rows (a >= 0); a = 0 erases everything.
void DeleteAllButLast(Lmap& lmap, std::int32_t a) noexcept;

/// Erases every point that lies neither in the last a rows nor in one of the boxes. Never reports: with a
/// beyond the first row there is nothing to erase.
void DeleteOutsideExceptLast(Lmap& lmap, std::int32_t a, std::span<const KeyBox> keep, Messages& messages);

/// Keeps the rows a ... b, moved so that they start at c, and erases the rest. Nothing when a > b.
void ChoosePart(Lmap& lmap, std::int32_t a, std::int32_t b, std::int32_t c) noexcept;

}  // namespace kov
