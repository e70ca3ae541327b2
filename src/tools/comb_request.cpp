#include "tools/comb_request.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "interact/integer_question.h"
#include "text/integers.h"
#include "tools/comb_count.h"
#include "tools/order_search.h"

namespace kov {
namespace {

std::string prompt(int table) {
  return std::string(
             "Search combinations whose realpart sum is as near as possible to 1.0 and write results to\n") +
         comb_file_name + "\n\nTo search those combinations up to order b<=" + int_text(highest_comb_order) +
         "\nwithin the a largest cden real parts of the\nquantities of subspace defined by\nSums1 table" +
         int_text(table) + " (first ranges) \n";
}

CombRules rules_of(const cphclass& cph) {
  // A line of a data file may have put a parameter outside the catalogue's bounds.
  constexpr std::int32_t most_matches = 127;
  return {.nearest = static_cast<std::size_t>(std::clamp(cph.kmi("Combtest1_nscnt"), 1, most_matches)),
          .one_per_difference = cph.kmi("Combtest1_ShowOnlyIncDev") != 0,
          .squares = cph.kmi("Combtest1_ShowSquaredDev") != 0};
}

/// a, cut down to what there is and to what is considered.
std::size_t element_limit(std::int32_t a, std::size_t candidates, Messages& messages) {
  const std::size_t limit = std::min(static_cast<std::size_t>(a), candidates);
  if (limit <= std::size_t{most_comb_elements}) return limit;
  messages.essential_warning("Only " + int_text(most_comb_elements) + " largest realparts can be considered");
  return most_comb_elements;
}

/// b, likewise; 0 when there are no elements.
int order_limit(std::int32_t b, std::size_t elements, Messages& messages) {
  const auto limit = static_cast<int>(std::min(static_cast<std::size_t>(b), elements));
  if (limit <= highest_comb_order) return limit;
  messages.essential_warning("Only combinations up to order " + int_text(highest_comb_order) +
                             " will be tested");
  return highest_comb_order;
}

bool every_order_has_a_plan(const CombRequest& request) {
  for (int order = 1; order <= request.order; ++order) {
    if (!plan_order(request.elements, order, request.rules)) return false;
  }
  return true;
}

bool can_and_shall_be_tested(const CombRequest& request, std::int32_t warn_millions, User user) {
  const auto elements = static_cast<std::int64_t>(request.elements.size());
  const double count = pm_combinations_up_to(elements, request.order);
  if (!std::isfinite(count) || !every_order_has_a_plan(request)) {
    user.messages.error("Computer cannot handle so many combinations");
    return false;
  }
  constexpr double million = 1e6;
  return count <= warn_millions * million ||
         user.questions.yes_no("Do you really want to test\n" + count_text(count) + " pm-combinations?");
}

}  // namespace

std::optional<CombRequest> ask_for_comb_search(const Lmap& lmap, const RangeTables& ranges,
                                               const cphclass& cph, User user) {
  const int table = ranges.current_index();
  const auto answer = ask_two_integers(user.questions, "Search Combination", prompt(table), "10,3");
  if (!answer) return std::nullopt;
  const auto [a, b] = *answer;
  if (a < 1 || b < 1) {
    user.messages.error("cden and cnum should be positive");
    return std::nullopt;
  }
  const CombCandidates candidates(lmap, ranges.current_table().range.front());
  CombRequest request{.rules = rules_of(cph),
                      .elements = {},
                      .candidate_count = candidates.count(),
                      .order = 0,
                      .table = table};
  const std::size_t limit = element_limit(a, candidates.count(), user.messages);
  request.order = order_limit(b, limit, user.messages);
  if (request.order == 0) {
    user.messages.information("No combinations to test");
    return std::nullopt;
  }
  request.elements = candidates.largest(limit);
  if (!can_and_shall_be_tested(request, cph.kmi("Combtest1_WarnMillions"), user)) return std::nullopt;
  return request;
}

}  // namespace kov
