#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "tools/comb_candidates.h"
#include "tools/order_result.h"
#include "tools/order_terms.h"

namespace kov {

/// The file that a combination search writes, in the current directory.
inline constexpr const char* comb_file_name = "kovcomb.aa2";

/// What a search is to do, when everything has been asked.
struct CombRequest {
  CombRules rules;
  /// The a largest real parts.
  std::vector<CombElement> elements;
  /// How many there were to choose from.
  std::size_t candidate_count = 0;
  /// The highest order b, 1 <= b <= elements.
  int order = 0;
  /// Index of the range table whose Range 1 is the scope.
  int table = 0;
};

/// What the head of the file says besides.
struct CombFileHead {
  std::string date_time;
  /// The data file that the lattices are from.
  std::string source;
  std::size_t lattice_point_count = 0;
};

/// The head of the file: what is searched, where, and how many combinations there are to test.
std::string comb_head_text(const CombRequest& request, const CombFileHead& head);

/// The block of one order: the nearest sums, each with its members, and those of squares.
std::string comb_order_text(const OrderResult& result, int order, const CombRules& rules,
                            std::span<const CombElement> elements);

/// "123 pm-combinations tested" and a line end.
std::string tested_text(double tested);

}  // namespace kov
