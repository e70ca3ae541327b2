#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "config/cphclass.h"
#include "graphs/g1par.h"
#include "sums/range_table.h"

namespace kov {

/// What the curves of a calculation were made from, for names and title.
struct G1Origin {
  RangeTable table;
  int table_index = 0;
  std::int32_t divmode = 0;
  /// The data file's name; empty without one.
  std::string file_name;
};

/// A calculation and what is to be seen of it; to be gone before any of it.
struct G1View {
  const G1Par& par;
  const G1Origin& origin;
  const G1Checks& checked;
  const cphclass& cph;
  /// Graph1_oplot_if_2_curves is set.
  bool oplot = false;

  /// The checked curves, by their index in G1Checks.
  std::vector<std::size_t> curves() const;
  /// Whether one of them is a curve of this range.
  bool draws_range(std::size_t range) const;
  /// Whether two curves are drawn against each other, instead of the curves along x.
  bool draws_oplot() const { return oplot && curves().size() == 2; }
  bool black_and_white() const { return cph.kmi("Graph1_OnlyBlackWhite") != 0; }

  /// "walk.aa1, range table 0, SR1: l=0 n=0 k1=-...+", with the ranges that are drawn; of an oplot with the
  /// coordinate besides along which its pairs are: ", along k1".
  std::string title() const;
  /// The coordinate along x, or that of each range where they differ.
  std::string x_name() const;
  /// What the values are, where there is one name for all the curves; else "sums".
  std::string y_name() const;
  /// The name of a curve by its index.
  std::string name_of(std::size_t index) const;
};

}  // namespace kov
