#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "lattice/bit_list.h"
#include "lattice/part_form.h"
#include "numbers/ratyp.h"

namespace kov {

/// The real or the imaginary parts of the points of a block, all in one form. A part keeps its value and
/// whether it is exact; which form holds it does not show.
///
/// Editing is in steps, so that several columns change together or not at all: make_fit() gives the column a
/// form that takes the part, reserve_one() gets the memory, both of which do not show, and insert() and set()
/// then cannot fail.
class Column {
 public:
  /// No parts.
  Column() = default;
  Column(const Column& other);
  Column(Column&&) noexcept = default;
  Column& operator=(Column other) noexcept;
  ~Column() = default;

  static Column zero(std::size_t count) noexcept;
  static Column floating_zero(std::size_t count) noexcept;
  /// The values numerator / denominator, reduced when read. Over a denominator other than 1 the numerators
  /// lie within the exact range.
  static Column integers(std::span<const std::int32_t> numerators, std::int32_t denominator = 1);
  static Column fractions(std::span<const Fraction32> parts);
  /// Reduced fractions in the smallest form that holds them all.
  static Column exact(std::span<const Fraction32> parts);
  /// None is -0.0.
  static Column doubles(std::span<const double> parts);
  /// Zeros, exact where exact has a bit and floating elsewhere; exact has a bit a part.
  static Column zeros(BitList exact);
  /// Integers where exact has a bit, floating numbers elsewhere, none of them -0.0; exact has a bit a part.
  static Column integers_and_doubles(std::span<const double> parts, BitList exact);
  /// In the smallest form that holds them all.
  static Column of(std::span<const ratyp> parts);

  PartForm form() const noexcept { return form_; }
  std::size_t size() const noexcept { return size_; }
  /// What the parts take, without what is reserved.
  std::size_t bytes() const noexcept;

  /// i < size()
  ratyp get(std::size_t i) const noexcept {
    if (form_ == PartForm::zero) return {};
    if (form_ == PartForm::integers && denominator_ == 1) return integers()[i];
    return get_other(i);
  }
  /// The parts from first on, as many as out takes.
  void decode(std::size_t first, std::span<ratyp> out) const noexcept;
  /// Likewise by their floating values, to_double of each.
  void decode(std::size_t first, std::span<double> out) const noexcept;
  /// The numerators, nullptr unless the form is integers.
  const std::int32_t* integers() const noexcept { return array<std::int32_t>(); }
  /// Of the integers; 1 in every other form.
  std::int32_t denominator() const noexcept { return denominator_; }
  /// nullptr unless the form is fractions.
  const Fraction32* fractions() const noexcept { return array<Fraction32>(); }
  /// The floating values of all parts; nullptr unless the form is doubles or mixed_integers.
  const double* doubles() const noexcept { return array<double>(); }
  /// Which parts are exact.
  BitList exact_parts() const;
  /// No numerator of the integers or fractions is larger in magnitude. Edits may leave it too large.
  std::uint32_t largest_numerator() const noexcept { return largest_; }

  /// The parts whose bits are set, in this form; there are as many bits as parts.
  Column picked(const BitList& which) const;

  bool takes(const ratyp& part) const noexcept;
  /// Goes over to a form that takes the part as well, where this one does not.
  void make_fit(const ratyp& part);
  void reserve_one();
  /// Before the part at i, or behind all. The form takes the part and a place is reserved.
  void insert(std::size_t i, const ratyp& part) noexcept;
  /// The form takes the part.
  void set(std::size_t i, const ratyp& part) noexcept;
  void erase(std::size_t i) noexcept { erase(i, 1); }
  void erase(std::size_t first, std::size_t count) noexcept;
  /// Keeps the parts at the ascending indices only.
  void keep(std::span<const std::uint32_t> indices) noexcept;
  /// Gives reserved memory back where there is much of it and that is possible.
  void shrink() noexcept;

 private:
  /// The bits of a Fraction32 or of a double.
  struct MixedPart {
    std::uint64_t bits;
  };

  using Parts = std::variant<std::monostate, std::vector<std::int32_t>, std::vector<Fraction32>,
                             std::vector<double>, std::vector<MixedPart>>;

  Column(PartForm form, std::size_t count, Parts parts, BitList exact = {}) noexcept
      : parts_(std::move(parts)),
        exact_(std::move(exact)),
        size_(static_cast<std::uint32_t>(count)),
        form_(form) {}
  static Column exact_of(std::span<const ratyp> parts);
  static Column mixed_of(std::span<const ratyp> parts);
  static MixedPart mixed(const ratyp& part) noexcept;
  bool is_mixed() const noexcept { return form_ >= PartForm::mixed_zeros; }

  template <class T>
  const T* array() const noexcept {
    const auto* parts = std::get_if<std::vector<T>>(&parts_);
    return parts ? parts->data() : nullptr;
  }
  /// f(vector of the form) where the parts take place.
  template <class Function>
  static void on_vector(auto& parts, const Function& f) {
    std::visit(
        [&]<class T>(T& vector) {
          if constexpr (!std::is_same_v<std::remove_const_t<T>, std::monostate>) f(vector);
        },
        parts);
  }
  ratyp value(std::int32_t numerator) const noexcept;
  static ratyp value(Fraction32 part) noexcept { return ratyp::reduced(part.nu, part.de); }
  static ratyp value(double part) noexcept { return ratyp::floating(part); }
  void encode(const ratyp& part, std::int32_t& place) const noexcept;
  void encode(const ratyp& part, Fraction32& place) const noexcept { place = {part.nu(), part.de()}; }
  void encode(const ratyp& part, double& place) const noexcept { place = to_double(part); }
  void encode(const ratyp& part, MixedPart& place) const noexcept { place = mixed(part); }
  void note(const ratyp& part) noexcept;
  /// get in the forms that take more to read.
  ratyp get_other(std::size_t i) const noexcept;
  ratyp get_mixed(std::size_t i) const noexcept;

  Parts parts_;
  /// In the mixed forms a bit for each part.
  BitList exact_;
  std::uint32_t size_ = 0;
  std::uint32_t largest_ = 0;
  std::int32_t denominator_ = 1;
  PartForm form_ = PartForm::zero;
};

}  // namespace kov
