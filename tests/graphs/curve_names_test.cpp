#include "graphs/curve_names.h"

#include <gtest/gtest.h>

#include "graphs/g1par.h"

namespace kov {
namespace {

TEST(CurveNames, GroupsAreNamedByWhatTheyAreDividedBy) {
  EXPECT_EQ(curve_group_caption(0, 0), "SR1:");
  EXPECT_EQ(curve_group_caption(1, 0), "SR2:");
  EXPECT_EQ(curve_group_caption(0, 1), "SR1/cnt:");
  EXPECT_EQ(curve_group_caption(1, 1), "SR2/cnt:");
  EXPECT_EQ(curve_group_caption(0, 2), "SR1/SR2:");
  EXPECT_EQ(curve_group_caption(1, 2), "SR2:");
}

TEST(CurveNames, FollowTheOrderOfTheBoxes) {
  std::string names;
  for (std::size_t index = 0; index < g1_curve_count; ++index) names += curve_name(index, 0) + "|";
  EXPECT_EQ(names,
            "SR1: qre|SR1: qim|SR1: qq|SR1: qa|SR1: cntAt|SR2: qre|SR2: qim|SR2: qq|SR2: qa|SR2: cntAt|");
  EXPECT_EQ(curve_name(9, 1), "SR2/cnt: cntAt");
  EXPECT_EQ(curve_name(0, 2), "SR1/SR2: qre");
  EXPECT_EQ(quantity_name(g1_qa), "qa");
}

}  // namespace
}  // namespace kov
