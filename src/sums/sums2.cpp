#include "sums/sums2.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <span>

#include "lattice/block_points.h"
#include "numbers/errors.h"
#include "sums/block_sums.h"
#include "sums/sum_progress.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* stopped_label = " Creating Sums2 was stopped by Break ";

using SumsOfLattice = std::array<PointSum, Slsums2_n_count>;

CountSums2_to_l finished(const SumsOfLattice& sums) {
  CountSums2_to_l result;
  for (std::size_t i = 0; i < sums.size(); ++i) {
    const SumRow row = finished_row(sums[i]);
    result.block[i] = {
        .count = sums[i].count,
        .sum = {row.value[sum_q], row.value[sum_q_per_cnt], row.value[sum_qq], row.value[sum_qq_per_cnt]}};
  }
  return result;
}

/// One walk over the store, chunk by chunk of its blocks.
class LatticeWalk {
 public:
  LatticeWalk(const Slsums2_Par& par, SumProgress& progress) : par_(par), progress_(progress) {}

  /// False when Break was pressed.
  bool add(const Row& row) {
    for (std::size_t block = 0; block < row.block_count(); ++block) {
      if (!add(row, row.block(block))) return false;
    }
    return true;
  }
  const std::map<std::int32_t, SumsOfLattice>& sums() const { return lattices_; }

 private:
  bool add(const Row& row, const Block& block) {
    std::size_t first = 0;
    while (first < block.size()) {
      const auto until_check = static_cast<std::size_t>(progress_.until_check());
      const std::size_t count = std::min({block.size() - first, BlockSums::most_points, until_check});
      chunk_.take(block, first, count);
      if (row.box().min.l() == row.box().max.l()) {
        add_to_selected(lattices_[row.box().min.l()], row.n(), [this](PointSum& sum) { chunk_.add_to(sum); });
      } else {
        add_by_lattice(row, block, first, count);
      }
      first += count;
      if (!progress_.advance(static_cast<std::int64_t>(count))) return false;
    }
    return true;
  }

  /// With more lattices in a chunk its points are added one by one instead of in a walk for each lattice.
  static constexpr std::size_t most_walks = 16;

  void add_by_lattice(const Row& row, const Block& block, std::size_t first, std::size_t count) {
    const auto lattices = std::span(lattice_).first(count);
    decode_coordinates(row, block, l_position, first, lattices);
    std::array<std::int32_t, BlockSums::most_points> sorted;
    std::copy(lattices.begin(), lattices.end(), sorted.begin());
    const auto end = sorted.begin() + static_cast<std::ptrdiff_t>(count);
    std::sort(sorted.begin(), end);
    const auto different = std::span(sorted.begin(), std::unique(sorted.begin(), end));
    if (different.size() > most_walks) {
      for (std::size_t i = 0; i < count; ++i) {
        add_to_selected(lattices_[lattices[i]], row.n(), [&](PointSum& sum) { chunk_.add_point(sum, i); });
      }
      return;
    }
    const auto flags = std::span(flags_).first(count);
    for (const std::int32_t l : different) {
      std::transform(lattices.begin(), lattices.end(), flags.begin(),
                     [l](std::int32_t lattice) { return static_cast<std::uint8_t>(lattice == l); });
      add_to_selected(lattices_[l], row.n(), [&](PointSum& sum) { chunk_.add_to(sum, flags); });
    }
  }

  /// add(sum) for that of all steps and those of the chosen steps that are n.
  template <class Add>
  void add_to_selected(SumsOfLattice& sums, std::int32_t n, const Add& add) const {
    add(sums[0]);
    for (std::size_t i = 1; i < par_.n.size(); ++i) {
      if (par_.n[i] == n) add(sums[i]);
    }
  }

  const Slsums2_Par& par_;
  SumProgress& progress_;
  std::map<std::int32_t, SumsOfLattice> lattices_;
  BlockSums chunk_;
  std::array<std::int32_t, BlockSums::most_points> lattice_;
  std::array<std::uint8_t, BlockSums::most_points> flags_;
};

/// Nothing when Break was pressed.
std::optional<S2map> sum_lattices(const Lmap& lmap, const Slsums2_Par& par, std::int64_t points_per_display,
                                  Progress& progress) {
  SumProgress shown(progress, static_cast<std::int64_t>(lmap.count()), points_per_display);
  LatticeWalk walk(par, shown);
  for (const Row& row : lmap.rows()) {
    if (!walk.add(row)) return std::nullopt;
  }
  S2map result;
  for (const auto& [l, sums] : walk.sums()) result.emplace_hint(result.end(), l, finished(sums));
  return result;
}

bool differ_in_parity(std::int32_t a, std::int32_t b) {
  return ((static_cast<std::uint32_t>(a) ^ static_cast<std::uint32_t>(b)) & 1U) != 0;
}

std::string math_error_text(const std::exception& error) {
  return std::string(" MathError during creating Sums2: \n") + error.what();
}

}  // namespace

Slsums2_Par Slsums2_Par::read(const cphclass& cph, std::int32_t nlast) {
  const std::int32_t n_first = cph.kmi("Sums2_n_first");
  const bool same_parity = cph.kmi("Sums2_both_eo") != 0;
  if (same_parity && differ_in_parity(n_first, nlast)) nlast = wrapping_subtract(nlast, 1);
  constexpr std::int32_t all_n = 0;
  return {.n = {all_n, n_first, cph.kmi("Sums2_n_second"), wrapping_subtract(nlast, 1), nlast}};
}

void Sums2::create(const Lmap& lmap, const cphclass& cph, User user) {
  sums_.clear();
  created_ = false;
  label_.clear();
  if (lmap.empty()) return;
  try {
    sum_up(lmap, cph, user);
  } catch (const math_error& error) {
    fail(math_error_text(error), user.messages);
  } catch (const ratyp_error& error) {
    fail(math_error_text(error), user.messages);
  } catch (...) {
    fail("Error when creating Sums2", user.messages);
  }
}

void Sums2::sum_up(const Lmap& lmap, const cphclass& cph, User user) {
  par_ = Slsums2_Par::read(cph, lmap.nlast());
  check_selector_count(par_.n.size(), user.messages);
  auto sums = sum_lattices(lmap, par_, cph.kmi("Sums_EntryCountPerDisplay"), user.progress);
  if (!sums) {
    label_ = stopped_label;
    return;
  }
  sums_.swap(*sums);
  created_ = true;
}

void Sums2::fail(const std::string& text, Messages& messages) {
  label_ = text;
  messages.error(text);
}

void check_selector_count(std::size_t i_n, Messages& messages) {
  if (i_n == Slsums2_n_count) return;
  messages.warning("i_n=" + int_text(static_cast<std::int64_t>(i_n)) +
                   " != " + int_text(static_cast<std::int64_t>(Slsums2_n_count)) + "=Slsums2_n_count");
}

}  // namespace kov
