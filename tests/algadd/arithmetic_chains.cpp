#include "arithmetic_chains.h"

#include <bit>
#include <numeric>

#include "numbers/checked_integer.h"
#include "text/integers.h"

namespace kov {

Block block_of(const std::vector<cotyp>& quantities) {
  std::vector<std::uint64_t> keys(quantities.size());
  std::iota(keys.begin(), keys.end(), 0U);
  std::vector<ratyp> re;
  std::vector<ratyp> im;
  for (const cotyp& q : quantities) {
    re.push_back(q.re);
    im.push_back(q.im);
  }
  return {keys, Column::of(re), Column::of(im)};
}

void add_literally(std::optional<cotyp>& cell, const cotyp& p, const cotyp& q) {
  if (cell) {
    *cell += p * q;
  } else {
    cell = p * q;
  }
  if (is_zero(*cell)) cell.reset();
}

namespace {

bool same_bits_of_part(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  if (a.exact()) return a.nu() == b.nu() && a.de() == b.de();
  return std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
}

}  // namespace

bool same_bits(const cotyp& a, const cotyp& b) {
  return same_bits_of_part(a.re, b.re) && same_bits_of_part(a.im, b.im);
}

std::vector<cotyp> pairs_of(const std::vector<ratyp>& re, const std::vector<ratyp>& im) {
  std::vector<cotyp> pairs;
  for (const ratyp& x : re) {
    for (const ratyp& y : im) {
      const cotyp pair(x, y);
      if (!is_zero(pair)) pairs.push_back(pair);
    }
  }
  return pairs;
}

const std::vector<ratyp>& edge_integers() {
  static const std::vector<ratyp> integers = {
      0,          1,          -1,          2,          -3,         46340,       -46341,         65536,
      nu_max_int, nu_min_int, highest_int, lowest_int, 1073741823, -1073741824, nu_max_int - 1, -nu_max_int};
  return integers;
}

const std::vector<ratyp>& edge_fractions() {
  static const std::vector<ratyp> fractions = {{1, 2},
                                               {-1, 3},
                                               {5, 6},
                                               {-7, 12},
                                               {46337, 46349},
                                               {-3, 65537},
                                               {1, nu_max_int},
                                               {nu_max_int, 3},
                                               {lowest_int, 3},
                                               {nu_min_int, 2},
                                               {12345, 67891},
                                               {-99991, 99989},
                                               {1, highest_int},
                                               {highest_int - 1, highest_int},
                                               {lowest_int, highest_int}};
  return fractions;
}

const std::vector<ratyp>& edge_doubles() {
  static const std::vector<ratyp> doubles = [] {
    std::vector<ratyp> made;
    for (const double x : {0.0, 0.1, -0.1, 1.0, -2.5, 1e-200, -3e-320, 1e150, 2147483646.0, -2147483648.5}) {
      made.push_back(ratyp::floating(x));
    }
    return made;
  }();
  return doubles;
}

std::vector<ratyp> joined(const std::vector<std::vector<ratyp>>& lists) {
  std::vector<ratyp> all;
  for (const std::vector<ratyp>& list : lists) all.insert(all.end(), list.begin(), list.end());
  return all;
}

}  // namespace kov
