#include "sums/sums2_grid.h"

#include <gtest/gtest.h>

#include "sums/sums_desk.h"

namespace kov {
namespace {

class Sums2GridTest : public ::testing::Test, protected SumsDesk {
 protected:
  void fill() {
    lmap.set(Lk::at(-4, 2), cotyp(1, 3, 0, 1));
    lmap.set(Lk::at(0, 3), cotyp(0, 1, 2, 3));
    lmap.set(Lk::at(7, 0, 1), cotyp(2));
    lmap.set(Lk::at(7, 0, 2), cotyp(5));
  }
  std::vector<std::string> row(int row) const {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.column_count(); ++column) texts.push_back(grid.text({column, row}));
    return texts;
  }

  Sums2Grid grid{lmap, cph, user()};
};

using Row = std::vector<std::string>;

TEST_F(Sums2GridTest, ShowsAColumnForEachLatticeAndABlockForEachSelector) {
  fill();
  cph.setkmi_1("Sums_ShowAsFloat", 0);
  grid.show();
  EXPECT_TRUE(grid.sums2().created());
  ASSERT_EQ(grid.column_count(), 4);
  ASSERT_EQ(grid.row_count(), 26);
  // clang-format off
  const Row expected[] = {
      {"              l->",      "-4",  "0",    "7"},
      {"all n: cnt",             "1",   "1",    "2"},
      {"all n: Sum  q  ",        "1/3", "2/3i", "7"},
      {"all n: Sum  q   / cnt",  "1/3", "2/3i", "7/2"},
      {"all n: Sum| q |^2",      "1/9", "4/9",  "29"},
      {"all n: Sum| q |^2/cnt",  "1/9", "4/9",  "29/2"},
      {"n=0: cnt",               "0",   "0",    "2"},
      {"n=0: Sum  q  ",          "0",   "0",    "7"},
      {"n=0: Sum  q   / cnt",    "0",   "0",    "7/2"},
      {"n=0: Sum| q |^2",        "0",   "0",    "29"},
      {"n=0: Sum| q |^2/cnt",    "0",   "0",    "29/2"},
      {"n=1: cnt",               "0",   "0",    "0"},
      {"n=1: Sum  q  ",          "0",   "0",    "0"},
      {"n=1: Sum  q   / cnt",    "0",   "0",    "0"},
      {"n=1: Sum| q |^2",        "0",   "0",    "0"},
      {"n=1: Sum| q |^2/cnt",    "0",   "0",    "0"},
      {"n=2: cnt",               "1",   "0",    "0"},
      {"n=2: Sum  q  ",          "1/3", "0",    "0"},
      {"n=2: Sum  q   / cnt",    "1/3", "0",    "0"},
      {"n=2: Sum| q |^2",        "1/9", "0",    "0"},
      {"n=2: Sum| q |^2/cnt",    "1/9", "0",    "0"},
      {"n=3: cnt",               "0",   "1",    "0"},
      {"n=3: Sum  q  ",          "0",   "2/3i", "0"},
      {"n=3: Sum  q   / cnt",    "0",   "2/3i", "0"},
      {"n=3: Sum| q |^2",        "0",   "4/9",  "0"},
      {"n=3: Sum| q |^2/cnt",    "0",   "4/9",  "0"},
  };
  // clang-format on
  for (int r = 0; r < grid.row_count(); ++r) EXPECT_EQ(row(r), expected[r]) << r;
  EXPECT_TRUE(reports.empty());
}

TEST_F(Sums2GridTest, BlocksAreNamedByTheirSteps) {
  fill();
  cph.setkmi_1("Sums2_n_first", -6);
  cph.setkmi_1("Sums2_n_second", 40);
  cph.setkmi_1("Sums2_both_eo", 1);
  grid.show();
  EXPECT_EQ(grid.text({0, 6}), "n=-6: cnt");
  EXPECT_EQ(grid.text({0, 11}), "n=40: cnt");
  EXPECT_EQ(grid.text({0, 16}), "n=1: cnt");
  EXPECT_EQ(grid.text({0, 21}), "n=2: cnt");
}

TEST_F(Sums2GridTest, WritesSumsAsFloatsButCountsAsIntegers) {
  fill();
  cph.setkmi_1("Sums_lt_precision", 2);
  for (std::int32_t k2 = 0; k2 < 120; ++k2) {
    Lk key = Lk::at(9, 1);
    key.coo[2] = k2;
    lmap.set(key, 1);
  }
  grid.show();
  EXPECT_EQ(row(1), (Row{"all n: cnt", "1", "1", "2", "120"}));
  EXPECT_EQ(row(2), (Row{"all n: Sum  q  ", "0.33", "0.67i", "7", "1.2E2"}));
}

TEST_F(Sums2GridTest, KeepsTheFormOfTheMomentOfSummingUp) {
  fill();
  grid.show();
  cph.setkmi_1("Sums_ShowAsFloat", 0);
  EXPECT_EQ(grid.text({1, 2}), "0.3333333");
  grid.show();
  EXPECT_EQ(grid.text({1, 2}), "1/3");
}

TEST_F(Sums2GridTest, WithoutSumsThereAreOnlyTheLabels) {
  const auto expect_labels_only = [this] {
    EXPECT_FALSE(grid.sums2().created());
    ASSERT_EQ(grid.column_count(), 1);
    EXPECT_EQ(grid.row_count(), 26);
    EXPECT_EQ(grid.text({0, 0}), "              l->");
    EXPECT_EQ(grid.text({0, 5}), "all n: Sum| q |^2/cnt");
    EXPECT_EQ(grid.text({0, 6}), "");
    EXPECT_EQ(grid.text({0, 25}), "");
  };
  expect_labels_only();
  grid.show();
  expect_labels_only();
  fill();
  grid.show();
  fill_with_overflow();
  grid.show();
  expect_labels_only();
}

TEST_F(Sums2GridTest, TheSelectedCellMayLoseItsColumn) {
  EXPECT_EQ(grid.editor_text(), "");
  fill();
  grid.show();
  grid.select({3, 1});
  EXPECT_EQ(grid.editor_text(), "2");
  lmap.clear();
  grid.show();
  EXPECT_EQ(grid.editor_text(), "");
}

TEST_F(Sums2GridTest, IsReadOnlyAndAsWideAsTheParameterSays) {
  fill();
  grid.show();
  grid.press(GridKey::of('7'));
  EXPECT_FALSE(grid.edited());
  EXPECT_FALSE(grid.key({GridKey::Name::enter}));
  EXPECT_EQ(grid.default_column_width(), 128);
  cph.setkmi_1("Sums_Slsums_DefaultColWidth", 66);
  EXPECT_EQ(grid.default_column_width(), 66);
}

TEST_F(Sums2GridTest, SaysThatItChanged) {
  int changes = 0;
  grid.set_changed([&changes] { ++changes; });
  grid.show();
  EXPECT_EQ(changes, 1);
}

TEST_F(Sums2GridTest, ReportsColumnsThatWereNotFilled) {
  check_column_count(4, 4, person);
  EXPECT_TRUE(reports.empty());
  check_column_count(3, 4, person);
  EXPECT_EQ(reports, (Reports{"beep", "message: icol=3 != 4=F1->Slsums2->ColCount"}));
}

}  // namespace
}  // namespace kov
