#include "lattice/column.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <type_traits>
#include <utility>

#include "lattice/common_denominator.h"
#include "lattice/copied_variant.h"
#include "lattice/spare_memory.h"
#include "numbers/checked_integer.h"
#include "numbers/pick.h"
#include "numbers/vector_dispatch.h"

namespace kov {
namespace {

template <class T>
std::uint32_t largest_magnitude(std::span<const T> parts) noexcept {
  std::uint32_t largest = 0;
  run_loop([&]() KOV_INLINE {
    std::uint32_t most = 0;
    for (const T& part : parts) {
      if constexpr (std::is_same_v<T, Fraction32>) {
        most = std::max(most, magnitude(part.nu));
      } else {
        most = std::max(most, magnitude(part));
      }
    }
    largest = most;
  });
  return largest;
}

bool is_floating_zero(const ratyp& part) noexcept { return !part.exact() && part.fl() == 0.0; }

bool is_fraction(const ratyp& part) noexcept { return part.exact() && part.de() != 1; }

bool is_exact_zero(const ratyp& part) noexcept { return part.exact() && part.nu() == 0; }

}  // namespace

Column::Column(const Column& other)
    : parts_(copied(other.parts_)),
      exact_(other.exact_),
      size_(other.size_),
      largest_(other.largest_),
      denominator_(other.denominator_),
      form_(other.form_) {}

Column& Column::operator=(Column other) noexcept {
  parts_ = std::move(other.parts_);
  exact_ = std::move(other.exact_);
  size_ = other.size_;
  largest_ = other.largest_;
  denominator_ = other.denominator_;
  form_ = other.form_;
  return *this;
}

Column Column::zero(std::size_t count) noexcept {
  Column column;
  column.size_ = static_cast<std::uint32_t>(count);
  return column;
}

Column Column::floating_zero(std::size_t count) noexcept {
  Column column = zero(count);
  column.form_ = PartForm::floating_zero;
  return column;
}

Column Column::integers(std::span<const std::int32_t> numerators, std::int32_t denominator) {
  Column column(PartForm::integers, numerators.size(),
                std::vector<std::int32_t>(numerators.begin(), numerators.end()));
  column.denominator_ = denominator;
  column.largest_ = largest_magnitude(numerators);
  return column;
}

Column Column::fractions(std::span<const Fraction32> parts) {
  Column column(PartForm::fractions, parts.size(), std::vector<Fraction32>(parts.begin(), parts.end()));
  column.largest_ = largest_magnitude(parts);
  return column;
}

Column Column::doubles(std::span<const double> parts) {
  return {PartForm::doubles, parts.size(), std::vector<double>(parts.begin(), parts.end())};
}

Column Column::of(std::span<const ratyp> parts) {
  const auto exact = static_cast<std::size_t>(
      std::count_if(parts.begin(), parts.end(), [](const ratyp& part) { return part.exact(); }));
  if (exact == parts.size()) return exact_of(parts);
  if (exact != 0) return mixed_of(parts);
  if (std::all_of(parts.begin(), parts.end(), is_floating_zero)) return floating_zero(parts.size());
  std::vector<double> values(parts.size());
  std::transform(parts.begin(), parts.end(), values.begin(), [](const ratyp& part) { return part.fl(); });
  return {PartForm::doubles, parts.size(), std::move(values)};
}

Column Column::exact_of(std::span<const ratyp> parts) {
  std::vector<Fraction32> reduced(parts.size());
  std::transform(parts.begin(), parts.end(), reduced.begin(), [](const ratyp& part) {
    return Fraction32{part.nu(), part.de()};
  });
  return exact(reduced);
}

Column Column::exact(std::span<const Fraction32> parts) {
  if (std::all_of(parts.begin(), parts.end(), [](Fraction32 part) { return part.nu == 0; })) {
    return zero(parts.size());
  }
  const auto denominator = common_denominator(parts);
  if (!denominator) return fractions(parts);
  std::vector<std::int32_t> numerators(parts.size());
  std::transform(parts.begin(), parts.end(), numerators.begin(), [&](Fraction32 part) {
    return *denominator == 1 ? part.nu : part.nu * (*denominator / part.de);
  });
  return integers(numerators, *denominator);
}

Column Column::zeros(BitList exact) {
  const std::size_t count = exact.size();
  const std::size_t exact_zeros = exact.count_ones();
  if (exact_zeros == count) return zero(count);
  if (exact_zeros == 0) return floating_zero(count);
  return {PartForm::mixed_zeros, count, std::monostate(), std::move(exact)};
}

Column Column::integers_and_doubles(std::span<const double> parts, BitList exact) {
  if (std::all_of(parts.begin(), parts.end(), [](double part) { return part == 0.0; })) {
    return zeros(std::move(exact));
  }
  const std::size_t exact_count = exact.count_ones();
  if (exact_count == 0) return doubles(parts);
  if (exact_count == parts.size()) return integers(std::vector<std::int32_t>(parts.begin(), parts.end()));
  return {PartForm::mixed_integers, parts.size(), std::vector<double>(parts.begin(), parts.end()),
          std::move(exact)};
}

Column Column::mixed_of(std::span<const ratyp> parts) {
  BitList exact = BitList::made(parts.size(), [&](std::size_t i) { return parts[i].exact(); });
  if (std::any_of(parts.begin(), parts.end(), is_fraction)) {
    std::vector<MixedPart> values(parts.size());
    std::transform(parts.begin(), parts.end(), values.begin(), mixed);
    return {PartForm::mixed, parts.size(), std::move(values), std::move(exact)};
  }
  std::vector<double> values(parts.size());
  std::transform(parts.begin(), parts.end(), values.begin(), to_double);
  return integers_and_doubles(values, std::move(exact));
}

Column::MixedPart Column::mixed(const ratyp& part) noexcept {
  if (part.exact()) return {std::bit_cast<std::uint64_t>(Fraction32{part.nu(), part.de()})};
  return {std::bit_cast<std::uint64_t>(part.fl())};
}

ratyp Column::value(std::int32_t numerator) const noexcept {
  return denominator_ == 1 ? ratyp(numerator) : ratyp(numerator, denominator_);
}

void Column::encode(const ratyp& part, std::int32_t& place) const noexcept {
  place = part.nu() * (denominator_ / part.de());
}

void Column::note(const ratyp& part) noexcept {
  if (form_ == PartForm::integers) {
    std::int32_t numerator = 0;
    encode(part, numerator);
    largest_ = std::max(largest_, magnitude(numerator));
  } else if (form_ == PartForm::fractions) {
    largest_ = std::max(largest_, magnitude(part.nu()));
  }
}

BitList Column::exact_parts() const {
  if (is_mixed()) return exact_;
  return BitList(size_, form_ != PartForm::floating_zero && form_ != PartForm::doubles);
}

std::size_t Column::bytes() const noexcept {
  std::size_t bytes = exact_.bytes();
  on_vector(parts_, [&](const auto& vector) { bytes += vector.size() * sizeof(vector[0]); });
  return bytes;
}

ratyp Column::get_other(std::size_t i) const noexcept {
  if (is_mixed()) return get_mixed(i);
  ratyp part = form_ == PartForm::floating_zero ? ratyp::floating(0.0) : ratyp();
  on_vector(parts_, [&]<class T>(const T& vector) {
    if constexpr (!std::is_same_v<T, std::vector<MixedPart>>) part = value(vector[i]);
  });
  return part;
}

ratyp Column::get_mixed(std::size_t i) const noexcept {
  const bool exact = exact_[i];
  if (const MixedPart* const parts = array<MixedPart>()) {
    return exact ? value(std::bit_cast<Fraction32>(parts[i].bits))
                 : value(std::bit_cast<double>(parts[i].bits));
  }
  const double* const values = doubles();
  const double part = values ? values[i] : 0.0;
  return exact ? ratyp(static_cast<std::int32_t>(part)) : value(part);
}

void Column::decode(std::size_t first, std::span<ratyp> out) const noexcept {
  if (is_mixed()) {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = get_mixed(first + i);
    return;
  }
  if (std::holds_alternative<std::monostate>(parts_)) {
    std::fill(out.begin(), out.end(), form_ == PartForm::zero ? ratyp() : ratyp::floating(0.0));
  }
  on_vector(parts_, [&]<class T>(const T& vector) {
    if constexpr (!std::is_same_v<T, std::vector<MixedPart>>) {
      for (std::size_t i = 0; i < out.size(); ++i) out[i] = value(vector[first + i]);
    }
  });
}

// A quotient of integers is the double nearest to it, reduced or not.
void Column::decode(std::size_t first, std::span<double> out) const noexcept {
  if (const double* const values = doubles()) {
    std::copy_n(values + first, out.size(), out.begin());
  } else if (const std::int32_t* numerators = integers()) {
    std::transform(numerators + first, numerators + first + out.size(), out.begin(),
                   [](std::int32_t numerator) { return static_cast<double>(numerator); });
    if (denominator_ == 1) return;
    for (double& value : out) value /= static_cast<double>(denominator_);
  } else if (std::holds_alternative<std::monostate>(parts_)) {
    std::fill(out.begin(), out.end(), 0.0);
  } else {
    for (std::size_t i = 0; i < out.size(); ++i) out[i] = to_double(get(first + i));
  }
}

Column Column::picked(const BitList& which) const {
  const std::size_t count = which.count_ones();
  Column column = zero(count);
  column.form_ = form_;
  column.denominator_ = denominator_;
  on_vector(parts_, [&]<class T>(const T& vector) {
    pick(vector.data(), vector.size(), which.words(), column.parts_.emplace<T>(count).data());
  });
  column.largest_ = largest_;
  if (is_mixed()) column.exact_ = exact_.picked(which);
  return column;
}

bool Column::takes(const ratyp& part) const noexcept {
  switch (form_) {
    case PartForm::zero:
      return is_exact_zero(part);
    case PartForm::floating_zero:
      return is_floating_zero(part);
    case PartForm::integers:
      if (!part.exact() || denominator_ % part.de() != 0) return false;
      return denominator_ == 1 || in_exact_range(std::int64_t{part.nu()} * (denominator_ / part.de()));
    case PartForm::fractions:
      return part.exact();
    case PartForm::doubles:
      return !part.exact();
    case PartForm::mixed_zeros:
      return is_exact_zero(part) || is_floating_zero(part);
    case PartForm::mixed_integers:
      return !is_fraction(part);
    case PartForm::mixed:
      break;
  }
  return true;
}

void Column::make_fit(const ratyp& part) {
  if (takes(part)) return;
  std::vector<ratyp> parts(size_ + std::size_t{1}, part);
  decode(0, std::span(parts).first(size_));
  Column fit = of(parts);
  fit.erase(size_);
  *this = std::move(fit);
}

void Column::reserve_one() {
  on_vector(parts_, [](auto& vector) { kov::reserve_one(vector); });
  if (is_mixed()) exact_.reserve_one();
}

void Column::insert(std::size_t i, const ratyp& part) noexcept {
  on_vector(parts_, [&](auto& vector) {
    const auto place = vector.emplace(vector.begin() + static_cast<std::ptrdiff_t>(i));
    encode(part, *place);
  });
  if (is_mixed()) exact_.insert(i, part.exact());
  note(part);
  ++size_;
}

void Column::set(std::size_t i, const ratyp& part) noexcept {
  on_vector(parts_, [&](auto& vector) { encode(part, vector[i]); });
  if (is_mixed()) exact_.set(i, part.exact());
  note(part);
}

void Column::erase(std::size_t first, std::size_t count) noexcept {
  on_vector(parts_, [&](auto& vector) {
    const auto begin = vector.begin() + static_cast<std::ptrdiff_t>(first);
    vector.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
  });
  if (is_mixed()) exact_.erase(first, count);
  size_ -= static_cast<std::uint32_t>(count);
}

void Column::keep(std::span<const std::uint32_t> indices) noexcept {
  on_vector(parts_, [&](auto& vector) {
    for (std::size_t i = 0; i < indices.size(); ++i) vector[i] = vector[indices[i]];
    vector.erase(vector.begin() + static_cast<std::ptrdiff_t>(indices.size()), vector.end());
  });
  if (is_mixed()) exact_.keep(indices);
  size_ = static_cast<std::uint32_t>(indices.size());
}

void Column::shrink() noexcept {
  on_vector(parts_, [](auto& vector) { give_back(vector); });
  exact_.shrink();
}

}  // namespace kov
