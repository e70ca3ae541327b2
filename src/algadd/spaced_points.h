#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "algadd/linear_arithmetic.h"
#include "numbers/vector_dispatch.h"
#include "numbers/wide_vector.h"

namespace kov {

/// So many points are added together at most, and so many cells behind the last one take zeros with them.
inline constexpr std::size_t points_at_once = 16;
inline constexpr std::size_t cells_behind_points = 32;

/// Adds the product of the factor and values i to the cell at first + offsets[i], for each i < count. The
/// offsets ascend strictly; cells_behind_points more cells than the last one can be read and written.
///
/// Points in a row, and points in every other cell, as walks leave them and as two lattices lie beside each
/// other, are added by vectors on processors that have the instructions for it. Cells between the points and
/// behind them then take a product with zero, which changes no sum, since none is -0.0.
template <class Arithmetic>
void add_products(typename Arithmetic::Sum* cells, std::int64_t first, const std::uint32_t* offsets,
                  std::size_t count, const typename Arithmetic::Factor& factor,
                  const typename Arithmetic::Values& values);

/// Not to become part of a function for wider vectors: g++ 12 makes fused multiply-adds, which round once
/// less, of complex products there, whatever it is told.
template <class Arithmetic>
[[gnu::noinline]] void add_one_by_one(typename Arithmetic::Sum* cells, std::int64_t first,
                                      const std::uint32_t* offsets, std::size_t from, std::size_t to,
                                      const typename Arithmetic::Factor& factor,
                                      const typename Arithmetic::Values& values) {
  for (std::size_t i = from; i < to; ++i) {
    Arithmetic::add(cells[first + offsets[i]], Arithmetic::product(factor, values, i));
  }
}

#if defined(__x86_64__)

/// Where the numbers of points, real parts first, imaginary parts behind them, go among the numbers of the
/// cells, stride cells a point: for each vector of cells the indices of its lanes, and which lanes take one.
template <class Number, std::size_t parts, std::size_t stride>
struct SpacedLanes {
  static constexpr std::size_t lanes = wide_lanes<Number>;
  static constexpr std::size_t vectors = parts * stride;
  using Index = std::conditional_t<sizeof(Number) == 4, std::int32_t, std::int64_t>;

  alignas(64) std::array<std::array<Index, lanes>, vectors> index{};
  std::array<unsigned, vectors> taken{};

  constexpr SpacedLanes() {
    for (std::size_t number = 0; number < vectors * lanes; ++number) {
      const std::size_t cell = number / parts;
      if (cell % stride != 0) continue;
      index[number / lanes][number % lanes] = static_cast<Index>(cell / stride + number % parts * lanes);
      taken[number / lanes] |= 1U << (number % lanes);
    }
  }
};

template <class Number, std::size_t parts, std::size_t stride>
inline constexpr SpacedLanes<Number, parts, stride> spaced_lanes;

/// Adds as many products as a vector has lanes to the cells, one cell in stride of them.
template <std::size_t parts, std::size_t stride, class Number, class Vector>
KOV_AVX512 inline void add_spaced(Number* cells, Vector re, Vector im) {
  constexpr std::size_t lanes = wide_lanes<Number>;
  if constexpr (parts * stride == 1) {
    store_wide(cells, wide_sum(load_wide(cells), re));
  } else {
    constexpr const auto& to = spaced_lanes<Number, parts, stride>;
    for (std::size_t i = 0; i < to.vectors; ++i, cells += lanes) {
      store_wide(cells, wide_sum(load_wide(cells), wide_picked(to.taken[i], re, to.index[i].data(), im)));
    }
  }
}

/// Adds the products of the factor and those of the sixteen values from i on whose bits are set.
template <std::size_t stride, class Number>
KOV_AVX512 inline void add_points(RealSum<Number>* cells, unsigned points, Number factor,
                                  const Number* values, std::size_t i) {
  constexpr std::size_t lanes = wide_lanes<Number>;
  for (std::size_t j = 0; j < points_at_once && points >> j != 0; j += lanes) {
    const auto re = wide_product(wide(factor), load_wide(points >> j, values + i + j));
    add_spaced<1, stride>(&cells[j * stride].re, re, re);
  }
}

/// Likewise, in the order of cotyp's product.
template <std::size_t stride, class Number, class Values>
KOV_AVX512 inline void add_points(ComplexSum<Number>* cells, unsigned points,
                                  const ComplexSum<Number>& factor, const Values& values, std::size_t i) {
  constexpr std::size_t lanes = wide_lanes<Number>;
  const auto p_re = wide(factor.re);
  const auto p_im = wide(factor.im);
  for (std::size_t j = 0; j < points_at_once && points >> j != 0; j += lanes) {
    const auto q_re = load_wide(points >> j, values.re + i + j);
    const auto q_im = load_wide(points >> j, values.im + i + j);
    const auto re = wide_difference(wide_product(p_re, q_re), wide_product(p_im, q_im));
    const auto im = wide_sum(wide_product(p_im, q_re), wide_product(p_re, q_im));
    add_spaced<2, stride>(&cells[j * stride].re, re, im);
  }
}

/// Has the lines of sixteen numbers fetched that lie a page behind p: where the next page begins nobody
/// foresees it.
template <class Number>
KOV_INLINE inline void fetch_points_ahead(const Number* p) {
  constexpr std::size_t bytes_ahead = 4096;
  for (std::size_t line = 0; line < points_at_once * sizeof(Number); line += 64) {
    fetch_ahead(p, bytes_ahead + line);
  }
}
template <class Values>
KOV_INLINE inline void fetch_points_ahead(const Values& values, std::size_t i) {
  if constexpr (requires { values.re; }) {
    fetch_points_ahead(values.re + i);
    fetch_points_ahead(values.im + i);
  } else {
    fetch_points_ahead(values + i);
  }
}

/// How many of the first sixteen offsets, of which those with a bit are known, follow each other at a stride.
KOV_AVX512 inline unsigned spaced_offsets(const std::uint32_t* offsets, unsigned known, int stride) {
  const __m512i steps = _mm512_set_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
  const __m512i expected = _mm512_add_epi32(_mm512_set1_epi32(static_cast<int>(offsets[0])),
                                            _mm512_mullo_epi32(steps, _mm512_set1_epi32(stride)));
  const auto mask = static_cast<__mmask16>(known);
  const __m512i actual = _mm512_maskz_loadu_epi32(mask, offsets);
  return static_cast<unsigned>(std::countr_one(_mm512_mask_cmpeq_epi32_mask(mask, actual, expected)));
}

template <class Arithmetic>
KOV_AVX512 void add_products_avx512(typename Arithmetic::Sum* cells, std::int64_t first,
                                    const std::uint32_t* offsets, std::size_t count,
                                    const typename Arithmetic::Factor& factor,
                                    const typename Arithmetic::Values& values) {
  // Fewer are as quick one by one.
  constexpr std::size_t few = 5;
  for (std::size_t i = 0; i < count;) {
    const std::size_t most = count - i < points_at_once ? count - i : points_at_once;
    const unsigned known = (1U << most) - 1;
    auto* const to = cells + (first + offsets[i]);
    fetch_points_ahead(offsets + i);
    fetch_points_ahead(values, i);
    if (const unsigned n = spaced_offsets(offsets + i, known, 1); n == points_at_once) {
      add_points<1>(to, known, factor, values, i);
      i += points_at_once;
    } else if (const unsigned m = spaced_offsets(offsets + i, known, 2); m == points_at_once) {
      add_points<2>(to, known, factor, values, i);
      i += points_at_once;
    } else if (n >= few) {
      add_points<1>(to, (1U << n) - 1, factor, values, i);
      i += n;
    } else if (m >= few) {
      add_points<2>(to, (1U << m) - 1, factor, values, i);
      i += m;
    } else {
      add_one_by_one<Arithmetic>(cells, first, offsets, i, i + most, factor, values);
      i += most;
    }
  }
}

#endif

template <class Arithmetic>
void add_products(typename Arithmetic::Sum* cells, std::int64_t first, const std::uint32_t* offsets,
                  std::size_t count, const typename Arithmetic::Factor& factor,
                  const typename Arithmetic::Values& values) {
#if defined(__x86_64__)
  if (vector_unit() == VectorUnit::avx512) {
    return add_products_avx512<Arithmetic>(cells, first, offsets, count, factor, values);
  }
#endif
  add_one_by_one<Arithmetic>(cells, first, offsets, 0, count, factor, values);
}

}  // namespace kov
