#include "algadd/step_arithmetic.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kov {

namespace {

void require_finite_numbers(std::span<const double> numbers) {
  bool finite = true;
  run_loop([&]() KOV_INLINE {
    bool all = true;
    for (const double x : numbers) all &= std::abs(x) <= std::numeric_limits<double>::max();
    finite = all;
  });
  if (!finite) throw floating_overflow();
}

bool all_zero(std::span<const double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double x) { return x == 0.0; });
}

bool is_exact_form(PartForm form) {
  return form == PartForm::zero || form == PartForm::integers || form == PartForm::fractions;
}

// The largest common divisor of all numerators and the denominator.
std::int32_t common_divisor(std::span<const std::int32_t> numerators, std::int32_t denominator) {
  std::int32_t divisor = denominator;
  for (const std::int32_t numerator : numerators) {
    if (divisor == 1) break;
    if (numerator % divisor != 0) divisor = std::gcd(divisor, numerator);
  }
  return divisor;
}

void decode_with_states(const Column& column, std::size_t from, std::size_t count, double* numbers,
                        std::uint8_t* exact) {
  if (column.form() != PartForm::mixed) {
    column.decode(from, std::span(numbers, count));
    std::fill_n(exact, count, std::uint8_t{is_exact_form(column.form())});
    return;
  }
  std::array<ratyp, 256> parts;
  for (std::size_t done = 0; done < count;) {
    const std::span some(parts.data(), std::min(parts.size(), count - done));
    column.decode(from + done, some);
    for (const ratyp& part : some) {
      numbers[done] = to_double(part);
      exact[done++] = std::uint8_t{part.exact()};
    }
  }
}

Column counted_column(std::span<const double> numbers, std::span<const std::uint8_t> exact) {
  const std::size_t count = numbers.size();
  const auto exact_count = static_cast<std::size_t>(std::count(exact.begin(), exact.end(), 1));
  if (exact_count == 0) return DoubleNumbers::column(numbers);
  if (exact_count == count) {
    std::array<std::int32_t, block_capacity> integers;
    bool any = false;
    for (std::size_t i = 0; i < count; ++i) {
      integers[i] = static_cast<std::int32_t>(numbers[i]);
      any |= integers[i] != 0;
    }
    return any ? Column::integers(std::span(integers.data(), count)) : Column::zero(count);
  }
  require_finite_numbers(numbers);
  std::vector<ratyp> parts(count);
  for (std::size_t i = 0; i < count; ++i) {
    parts[i] = exact[i] != 0 ? ratyp(static_cast<std::int32_t>(numbers[i])) : ratyp::floating(numbers[i]);
  }
  return Column::of(parts);
}

}  // namespace

const std::int32_t* IntegerNumbers::values(const Column& column, std::size_t from, std::size_t count,
                                           std::int32_t* room) const {
  if (column.form() == PartForm::zero) {
    std::fill_n(room, count, 0);
    return room;
  }
  const std::int32_t* const numerators = column.integers() + from;
  const std::int32_t scale = source_denominator / column.denominator();
  if (scale == 1) return numerators;
  for (std::size_t i = 0; i < count; ++i) room[i] = numerators[i] * scale;
  return room;
}

Column IntegerNumbers::column(std::span<const std::int32_t> numerators) const {
  if (std::all_of(numerators.begin(), numerators.end(), [](std::int32_t x) { return x == 0; })) {
    return Column::zero(numerators.size());
  }
  const std::int32_t denominator = source_denominator * factor_denominator;
  const std::int32_t divisor = common_divisor(numerators, denominator);
  if (divisor == 1) return Column::integers(numerators, denominator);
  std::array<std::int32_t, block_capacity> reduced;
  for (std::size_t i = 0; i < numerators.size(); ++i) reduced[i] = numerators[i] / divisor;
  return Column::integers(std::span(reduced.data(), numerators.size()), denominator / divisor);
}

const double* DoubleNumbers::values(const Column& column, std::size_t from, std::size_t count, double* room) {
  if (column.form() == PartForm::doubles) return column.doubles() + from;
  column.decode(from, std::span(room, count));
  return room;
}

Column DoubleNumbers::column(std::span<const double> numbers) {
  require_finite_numbers(numbers);
  return all_zero(numbers) ? Column::floating_zero(numbers.size()) : Column::doubles(numbers);
}

CountedArithmetic::Factor CountedArithmetic::factor(const cotyp& p) const {
  const unsigned exact = static_cast<unsigned>(p.re.exact()) | static_cast<unsigned>(p.im.exact()) << 1U;
  return {to_double(p.re), to_double(p.im), static_cast<std::uint8_t>(exact)};
}

CountedArithmetic::Values CountedArithmetic::values(const Block& block, std::size_t from, std::size_t count,
                                                    Room& room) const {
  decode_with_states(block.re(), from, count, room.numbers.re.data(), room.exact.re.data());
  decode_with_states(block.im(), from, count, room.numbers.im.data(), room.exact.im.data());
  return {room.numbers.re.data(), room.numbers.im.data(), room.exact.re.data(), room.exact.im.data()};
}

std::pair<Column, Column> CountedArithmetic::columns(std::span<const Sum> sums) const {
  std::array<double, block_capacity> numbers;
  std::array<std::uint8_t, block_capacity> exact;
  const auto column = [&](double Sum::*part, unsigned bit) {
    for (std::size_t i = 0; i < sums.size(); ++i) {
      numbers[i] = sums[i].*part;
      exact[i] = static_cast<std::uint8_t>(sums[i].exact >> bit & 1U);
    }
    return counted_column(std::span(numbers.data(), sums.size()), std::span(exact.data(), sums.size()));
  };
  Column re = column(&Sum::re, 0);
  return {std::move(re), column(&Sum::im, 1)};
}

QuantityArithmetic::Values QuantityArithmetic::values(const Block& block, std::size_t from, std::size_t count,
                                                      Room& room) {
  for (std::size_t i = 0; i < count; ++i) room.quantities[i] = block.quantity(from + i);
  return room.quantities.data();
}

std::pair<Column, Column> QuantityArithmetic::columns(std::span<const Sum> sums) {
  std::vector<ratyp> parts(sums.size());
  const auto column = [&](ratyp cotyp::*part) {
    std::transform(sums.begin(), sums.end(), parts.begin(), [&](const cotyp& sum) { return sum.*part; });
    return Column::of(parts);
  };
  for (const cotyp& sum : sums) require_no_overflow(sum);
  Column re = column(&cotyp::re);
  return {std::move(re), column(&cotyp::im)};
}

}  // namespace kov
