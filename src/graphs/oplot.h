#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "graphs/g1par.h"

namespace kov {

/// The values of two curves at one place along x.
struct CurvePair {
  double first = 0;
  double second = 0;
  friend bool operator==(const CurvePair&, const CurvePair&) = default;
};

/// What a plot of two curves against each other shows, in the order of x: a pair for every column at which an
/// x value lies. Graph1_oplot_skip_zeros leaves out pairs: 1 those with two zeros, 2 those with a zero.
std::vector<CurvePair> oplot_pairs(const G1Par& par, const G1Curve& first, const G1Curve& second,
                                   std::int32_t skip_zeros);

/// "oplot: not 2 but 3 valid curves".
std::string oplot_complaint(std::size_t valid_curves);

}  // namespace kov
