#include "sums/block_sums.h"

#include "lattice/block_points.h"
#include "numbers/checked_integer.h"

namespace kov {
namespace {

constexpr std::uint64_t largest_exact = nu_max_int;

constexpr std::uint64_t square(std::uint64_t magnitude) noexcept { return magnitude * magnitude; }

/// True when the sum goes on as it is: floating, or an exact integer that no partial sum takes out of the
/// range.
bool stays(const ratyp& sum, std::uint64_t largest, std::size_t count) noexcept {
  return !sum.exact() || (sum.de() == 1 && magnitude(sum.nu()) + largest * count <= largest_exact);
}

ratyp sum_of(double value, bool exact) noexcept {
  return exact ? ratyp(static_cast<std::int32_t>(value)) : ratyp::floating(value);
}

}  // namespace

BlockSums::Kind BlockSums::kind_of(const Column& column) noexcept {
  const bool exact = column.form() == PartForm::zero || column.form() == PartForm::integers;
  return {.exact = exact, .largest = column.largest_numerator()};
}

void BlockSums::take(const Block& block, std::size_t first, std::size_t count) noexcept {
  block_ = &block;
  first_ = first;
  count_ = count;
  simple_ = squares_are_of_doubles(block);
  if (!simple_) return;
  re_ = kind_of(block.re());
  im_ = kind_of(block.im());
  squares_ = {.exact = re_.exact && im_.exact, .largest = square(re_.largest) + square(im_.largest)};
  block.re().decode(first, std::span(values_.re).first(count));
  block.im().decode(first, std::span(values_.im).first(count));
  for (std::size_t i = 0; i < count; ++i) {
    values_.squares[i] = values_.re[i] * values_.re[i] + values_.im[i] * values_.im[i];
  }
}

// A floating sum takes exact values by their doubles as well. Of exact parts whose squares may leave the
// exact range each square is exact or floating on its own, which matters to a sum that is exact.
bool BlockSums::bulk_serves(const PointSum& sum, std::size_t count) const noexcept {
  if (!simple_) return false;
  if (re_.exact && !stays(sum.q.re, re_.largest, count)) return false;
  if (im_.exact && !stays(sum.q.im, im_.largest, count)) return false;
  if (!squares_.exact || !sum.squares.exact()) return true;
  return squares_.largest <= largest_exact && stays(sum.squares, squares_.largest, count);
}

// In this order, which floating sums depend on; the three run side by side.
void BlockSums::add_values(PointSum& sum, const Values& values, std::size_t count) const noexcept {
  if (count == 0) return;
  double re = to_double(sum.q.re);
  double im = to_double(sum.q.im);
  double squares = to_double(sum.squares);
  for (std::size_t i = 0; i < count; ++i) {
    re += values.re[i];
    im += values.im[i];
    squares += values.squares[i];
  }
  sum.count += static_cast<std::int64_t>(count);
  sum.q.re = sum_of(re, re_.exact && sum.q.re.exact());
  sum.q.im = sum_of(im, im_.exact && sum.q.im.exact());
  sum.squares = sum_of(squares, squares_.exact && sum.squares.exact());
}

void BlockSums::add_point(PointSum& sum, std::size_t i) const noexcept {
  const cotyp q = block_->quantity(first_ + i);
  sum.add(q, qq(q));
}

void BlockSums::add_to(PointSum& sum) const noexcept {
  if (bulk_serves(sum, count_)) {
    add_values(sum, values_, count_);
  } else {
    for (std::size_t i = 0; i < count_; ++i) add_point(sum, i);
  }
}

void BlockSums::add_to(PointSum& sum, std::span<const std::uint8_t> flags) noexcept {
  if (!bulk_serves(sum, count_)) {
    for (std::size_t i = 0; i < count_; ++i) {
      if (flags[i] != 0) add_point(sum, i);
    }
    return;
  }
  std::size_t picked = 0;
  for (std::size_t i = 0; i < count_; ++i) {
    picked_.re[picked] = values_.re[i];
    picked_.im[picked] = values_.im[i];
    picked_.squares[picked] = values_.squares[i];
    picked += flags[i];
  }
  add_values(sum, picked_, picked);
}

}  // namespace kov
