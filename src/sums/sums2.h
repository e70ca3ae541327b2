#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "sums/range_sums.h"

namespace kov {

/// All steps, and the four steps that are chosen.
inline constexpr std::size_t Slsums2_n_count = 5;

/// The parameters of a creation of the Sums2 page.
struct Slsums2_Par {
  /// The step that each block sums up, in the order of the blocks; the one of block 0, which takes all
  /// steps, means nothing. Empty before the first creation.
  std::vector<std::int32_t> n;

  /// Sums2_n_first, Sums2_n_second, nlast - 1 and nlast. With Sums2_both_eo set and the first step odd where
  /// nlast is even, or the reverse, the last two are one less. Steps wrap like any coordinate.
  static Slsums2_Par read(const cphclass& cph, std::int32_t nlast);
};

/// The sums over the points of one lattice: one block for each selector.
struct CountSums2_to_l {
  struct Block {
    std::int64_t count = 0;
    /// Sum q, Sum q / cnt, Sum |q|^2, Sum |q|^2 / cnt; all zero without points.
    std::array<cotyp, sum_quantity_count - 1> sum;
  };

  std::array<Block, Slsums2_n_count> block;
};

/// By lattice index, ascending.
using S2map = std::map<std::int32_t, CountSums2_to_l>;

/// What the Sums2 page computes, from empty each time it is shown: for every lattice of the store the sums
/// over all steps and over the four chosen ones; and the label that stands in place of its grid.
class Sums2 {
 public:
  /// Reports a failure: " MathError during creating Sums2: \n" and its text for a numeric error, else "Error
  /// when creating Sums2". Only a complete creation leaves sums.
  void create(const Lmap& lmap, const cphclass& cph, User user);

  /// Whether the last creation was complete: the grid is shown, else the label.
  bool created() const { return created_; }
  /// Why there is no grid; empty for an empty store.
  const std::string& label() const { return label_; }
  const Slsums2_Par& par() const { return par_; }
  const S2map& sums() const { return sums_; }

 private:
  void sum_up(const Lmap& lmap, const cphclass& cph, User user);
  void fail(const std::string& text, Messages& messages);

  Slsums2_Par par_;
  S2map sums_;
  bool created_ = false;
  std::string label_;
};

/// A program error unless each of the selectors was filled: "i_n=" + the number + " != 5=Slsums2_n_count".
void check_selector_count(std::size_t i_n, Messages& messages);

}  // namespace kov
