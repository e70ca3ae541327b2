#include "tools/searched_elements.h"

#include <gtest/gtest.h>

#include "tools/comb_count.h"
#include "tools/comb_elements.h"

namespace kov {
namespace {

TEST(SearchedElements, OfEqualOnesAsManyAreSearchedAsCanEnter) {
  const auto elements = comb_elements({3.0, 2.0, 2.0, 2.0, 2.0, 2.0, 1.0});
  EXPECT_EQ(distinct_enough(elements, 2, {.nearest = 4, .one_per_difference = true}),
            (std::vector<std::uint32_t>{0, 1, 2, 6}));
  EXPECT_EQ(distinct_enough(elements, 2, {.nearest = 2, .one_per_difference = false}),
            (std::vector<std::uint32_t>{0, 1, 2, 3, 6}));
}

TEST(SearchedElements, HaveIndicesOfTheirOwn) {
  const auto elements = comb_elements({3.0, 2.0, 2.0, 2.0, -1.5});
  const SearchedElements searched(elements, 2, {.nearest = 4, .one_per_difference = true});
  EXPECT_EQ(searched.count(), 4U);
  EXPECT_EQ(searched.values(&CombElement::re), (std::vector<double>{3.0, 2.0, 2.0, -1.5}));
  EXPECT_EQ(searched.values(&CombElement::square), (std::vector<double>{9.0, 4.0, 4.0, 2.25}));
  EXPECT_EQ(searched.translated({{0.5, {2, 3}, 1}}), (std::vector<CombMatch>{{0.5, {2, 4}, 1}}));
}

/// The enumeration itself, up to a combination.
TEST(SearchedElements, CountWhatIsMetBeforeACombination) {
  const auto elements = comb_elements({0.5, 0.25, 0.125, 3.0, 5.0, 9.0});
  const CombRules every{.nearest = 10000, .one_per_difference = false};
  const SearchedElements searched(elements, 3, every);
  EXPECT_EQ(searched.all(), 160.0);
  double before = 0.0;
  for (std::uint32_t c = 2; c < 6; ++c) {
    EXPECT_EQ(searched.met_before({}, c), before);
    for (std::uint32_t b = 1; b < c; ++b) {
      EXPECT_EQ(searched.met_before(std::vector{c}, b), before);
      for (std::uint32_t a = 0; a < b; ++a, before += 8.0) {
        EXPECT_EQ(searched.met_before(std::vector{b, c}, a), before) << a << b << c;
      }
    }
  }
  EXPECT_EQ(before, searched.all());
  EXPECT_EQ(searched.met_before(std::vector<std::uint32_t>{3, 4, 5}, 3), searched.all());
}

TEST(SearchedElements, CountThoseThatAreLeftOut) {
  const auto elements = comb_elements({2.0, 2.0, 2.0, 2.0, 1.0});
  const SearchedElements searched(elements, 2, {.nearest = 1, .one_per_difference = true});
  ASSERT_EQ(searched.count(), 3U);
  EXPECT_EQ(searched.all(), 40.0);
  EXPECT_EQ(searched.met_before(std::vector<std::uint32_t>{2}, 0), pm_combinations(4, 2));
}

}  // namespace
}  // namespace kov
