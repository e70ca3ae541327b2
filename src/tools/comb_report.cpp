#include "tools/comb_report.h"

#include <algorithm>

#include "numbers/floating_text.h"
#include "text/integers.h"
#include "tools/comb_count.h"

namespace kov {
namespace {

std::string size_text(std::size_t count) { return int_text(static_cast<std::int64_t>(count)); }

std::string extent_text(const CombRequest& request) {
  const std::string begin = "Testing combinations up to order " + int_text(request.order) + " within ";
  const std::string all = size_text(request.candidate_count);
  if (request.elements.size() == request.candidate_count) return begin + "all " + all + " Elements of S1\n";
  return begin + "the largest " + size_text(request.elements.size()) + "\nelements of altogether " + all +
         " elements of S1 Range1.\n";
}

/// l, n, k1, ... as far as they are not 0, l and n always.
std::string key_text(const Lk& key) {
  std::size_t last = listed_positions.size() - 1;
  while (last > 1 && key.coo[static_cast<std::size_t>(listed_positions[last])] == 0) --last;
  std::string text;
  for (std::size_t row = 0; row <= last; ++row) {
    text += (row == 0 ? "" : " ") + int_text(key.coo[static_cast<std::size_t>(listed_positions[row])]);
  }
  return text;
}

std::string block_head(std::size_t rank, const CombMatch& match) {
  return size_text(rank) + ": absdiff to 1.0 =" + exact_text(match.difference) + "\n";
}

std::string sum_blocks(std::span<const CombMatch> matches, std::span<const CombElement> elements) {
  std::string text;
  for (std::size_t rank = 1; rank <= matches.size(); ++rank) {
    const CombMatch& match = matches[rank - 1];
    text += block_head(rank, match);
    for (std::size_t i = 0; i < match.members.size(); ++i) {
      const CombElement& member = elements[match.members[i]];
      text += (match.plus >> i & 1U) != 0 ? "+ " : "- ";
      text += exact_text(member.re) + " = lmap[" + key_text(member.key) + "]\n";
    }
    text += '\n';
  }
  return text;
}

std::string square_blocks(std::span<const CombMatch> matches, std::span<const CombElement> elements) {
  std::string text;
  for (std::size_t rank = 1; rank <= matches.size(); ++rank) {
    text += block_head(rank, matches[rank - 1]);
    for (const std::uint32_t index : matches[rank - 1].members) {
      const CombElement& member = elements[index];
      text += "+ " + exact_text(member.square) + " = lmap[" + key_text(member.key) + "]     (is sqr of " +
              exact_text(member.re) + ")\n";
    }
    text += '\n';
  }
  return text;
}

bool all_plus(const CombMatch& match) { return match.plus == (std::uint64_t{1} << match.members.size()) - 1; }

}  // namespace

std::string comb_head_text(const CombRequest& request, const CombFileHead& head) {
  return std::string(request.rules.squares
                         ? "Testing sums of squared realparts and pm-sums of realparts\n"
                         : "Searching for realpart-combinations whose sum is nearest to 1.0\n") +
         head.date_time + " = T.M.J h:m:s\n" +                                                             //
         head.source + " = source, lattice_point_count = " + size_text(head.lattice_point_count) + "\n" +  //
         "scope: Sums1 Range1 table " + int_text(request.table) + "\n" +                                   //
         "output: Respectively the " + size_text(request.rules.nearest) +
         " best matches of the sums with 1.0\n" +  //
         extent_text(request) +                    //
         count_text(
             pm_combinations_up_to(static_cast<std::int64_t>(request.elements.size()), request.order)) +
         " over 1.." + int_text(request.order) + " pm-combinations to test\n";
}

std::string comb_order_text(const OrderResult& result, int order, const CombRules& rules,
                            std::span<const CombElement> elements) {
  std::string text = "\n###### Results of combinations of order " + int_text(order) + "\n";
  text += std::all_of(result.sums.begin(), result.sums.end(), all_plus)
              ? "All nearest sums have positive sign pattern.\n\n"
              : "pm-combinations: plus-minus sign pattern of summation\n\n";
  text += sum_blocks(result.sums, elements);
  if (rules.squares) text += "Sums of squares:\n" + square_blocks(result.squares, elements);
  return text;
}

std::string tested_text(double tested) { return count_text(tested) + " pm-combinations tested\n"; }

}  // namespace kov
