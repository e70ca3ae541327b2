#include "sums/sums1_grid.h"

#include <gtest/gtest.h>

#include "sums/sums_desk.h"

namespace kov {
namespace {

class Sums1GridTest : public ::testing::Test, protected SumsDesk {
 protected:
  Sums1Grid grid{page, cph, user()};
};

TEST_F(Sums1GridTest, HasAHeadingARowForEachFormAndQuantityAndTheWidthOfTheParameter) {
  EXPECT_EQ(grid.column_count(), 4);
  EXPECT_EQ(grid.row_count(), 21);
  EXPECT_EQ(grid.default_column_width(), 128);
  cph.setkmi_1("Sums_Slsums_DefaultColWidth", 77);
  EXPECT_EQ(grid.default_column_width(), 77);
  EXPECT_EQ(grid.text({1, 0}), "          Sum 1");
  EXPECT_EQ(grid.text({0, 7}), "s/s1: Sum  q  ");
}

TEST_F(Sums1GridTest, SumsUpWhenItIsShown) {
  fill_line(2);
  EXPECT_EQ(grid.text({1, 2}), "");
  grid.show();
  EXPECT_EQ(grid.text({1, 2}), "2");
  EXPECT_EQ(grid.text({2, 1}), "0");
  EXPECT_EQ(grid.text({3, 7}), "1");
  EXPECT_EQ(grid.text({1, 12}), "");
}

TEST_F(Sums1GridTest, IsReadOnly) {
  fill_line(2);
  grid.show();
  grid.press(GridKey::of('7'));
  EXPECT_FALSE(grid.edited());
  EXPECT_EQ(grid.editor_text(), "2");
  EXPECT_FALSE(grid.key({GridKey::Name::enter}));
  EXPECT_TRUE(reports.empty());
}

}  // namespace
}  // namespace kov
