#include "lattice/block_points.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "numbers/vector_dispatch.h"

namespace kov {
namespace {

bool square_is_of_double(const Column& column) noexcept {
  switch (column.form()) {
    case PartForm::zero:
    case PartForm::floating_zero:
    case PartForm::doubles:
      return true;
    case PartForm::integers:
      return column.denominator() == 1;
    case PartForm::fractions:
    case PartForm::mixed_zeros:
    case PartForm::mixed_integers:
    case PartForm::mixed:
      break;
  }
  return false;
}

bool takes_no_place(const Column& column) noexcept {
  return column.form() == PartForm::zero || column.form() == PartForm::floating_zero ||
         column.form() == PartForm::mixed_zeros;
}

/// The coordinate at one position of packed keys.
class PackedCoordinate {
 public:
  PackedCoordinate(const KeyFrame& frame, std::size_t position) noexcept
      : mask_((std::uint64_t{1} << frame.bits(position)) - 1),
        shift_(frame.shift_of(position)),
        low_(frame.low(position)) {}

  KOV_INLINE std::int32_t of(std::uint64_t packed) const noexcept {
    return wrapping_add(low_, static_cast<std::int32_t>((packed >> shift_) & mask_));
  }

 private:
  std::uint64_t mask_;
  int shift_;
  std::int32_t low_;
};

}  // namespace

void decode_coordinates(const Row& row, const Block& block, std::size_t position, std::size_t first,
                        std::span<std::int32_t> out) noexcept {
  if (block.wide()) {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = block.wide_key(first + i).coo[position];
    return;
  }
  const KeyFrame& frame = row.frame();
  if (frame.bits(position) == 0) {
    std::fill(out.begin(), out.end(), row.box().min.coo[position]);
  } else if (const std::uint32_t* offsets = block.offsets()) {
    const PackedCoordinate coordinate(frame, position);
    run_loop([offsets = offsets + first, base = block.base(), coordinate, out]() KOV_INLINE {
      for (std::size_t i = 0; i < out.size(); ++i) out[i] = coordinate.of(base + offsets[i]);
    });
  } else {
    const PackedCoordinate coordinate(frame, position);
    run_loop([keys = block.keys() + first, coordinate, out]() KOV_INLINE {
      for (std::size_t i = 0; i < out.size(); ++i) out[i] = coordinate.of(keys[i]);
    });
  }
}

bool squares_are_of_doubles(const Block& block) noexcept {
  return square_is_of_double(block.re()) && square_is_of_double(block.im());
}

void decode_squares(const Block& block, std::size_t first, std::span<double> out) noexcept {
  if (!squares_are_of_doubles(block)) {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = to_double(qq(block.quantity(first + i)));
    return;
  }
  block.re().decode(first, out);
  for (double& part : out) part *= part;
  if (takes_no_place(block.im())) return;
  constexpr std::size_t at_once = 512;
  std::array<double, at_once> im;
  for (std::size_t done = 0; done < out.size(); done += at_once) {
    const std::size_t count = std::min(at_once, out.size() - done);
    block.im().decode(first + done, std::span(im).first(count));
    for (std::size_t i = 0; i < count; ++i) out[done + i] += im[i] * im[i];
  }
}

// Of one side only the hypotenuse is that side exactly.
void decode_magnitudes(const Block& block, std::size_t first, std::span<double> out) noexcept {
  block.re().decode(first, out);
  if (takes_no_place(block.im())) {
    for (double& part : out) part = std::fabs(part);
    return;
  }
  for (std::size_t i = 0; i < out.size(); ++i)
    out[i] = std::hypot(out[i], to_double(block.im().get(first + i)));
}

}  // namespace kov
