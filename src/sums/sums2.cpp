#include "sums/sums2.h"

#include <exception>
#include <optional>

#include "numbers/errors.h"
#include "sums/sum_progress.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* stopped_label = " Creating Sums2 was stopped by Break ";

using SumsOfLattice = std::array<PointSum, Slsums2_n_count>;

void add_point(SumsOfLattice& sums, const Slsums2_Par& par, std::int32_t n, const cotyp& q) {
  const ratyp square = qq(q);
  sums[0].add(q, square);
  for (std::size_t i = 1; i < par.n.size(); ++i) {
    if (par.n[i] == n) sums[i].add(q, square);
  }
}

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

/// Nothing when Break was pressed.
std::optional<S2map> sum_lattices(const Lmap& lmap, const Slsums2_Par& par, std::int64_t points_per_display,
                                  Progress& progress) {
  SumProgress walk(progress, static_cast<std::int64_t>(lmap.count()), points_per_display);
  std::map<std::int32_t, SumsOfLattice> lattices;
  const auto end = lmap.end();
  for (auto place = lmap.begin(); place != end; ++place) {
    const Lk& key = place.key();
    add_point(lattices[key.l()], par, key.n(), place.quantity());
    if (!walk.advance()) return std::nullopt;
  }
  S2map result;
  for (const auto& [l, sums] : lattices) result.emplace_hint(result.end(), l, finished(sums));
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
