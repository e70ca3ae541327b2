#include "lattice/list_grid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "interact/scripted_user.h"
#include "text/integers.h"

namespace kov {
namespace {

using Name = GridKey::Name;

class SllistGridTest : public ::testing::Test {
 protected:
  /// A point at the origin of each of the rows first ... last.
  void fill(std::int32_t first, std::int32_t last) {
    for (std::int32_t n = first; n <= last; ++n) lmap_.set(Lk::at(0, n), 1);
    grid_.show();
  }

  /// Gives the running numbers and steps that are listed, first and last, as "1:0 59:58".
  std::string span() const {
    int last = grid_.row_count() - 1;
    while (last > 1 && grid_.text({0, last}).empty()) --last;
    const auto row_text = [this](int row) { return grid_.text({0, row}) + ":" + grid_.text({3, row}); };
    return row_text(1) + " " + row_text(last);
  }

  std::string after(Name key) {
    grid_.press({key});
    return span();
  }

  std::string after_start_at(const std::string& answer) {
    person_.set_answers({answer});
    grid_.click(GridClick::right, {5, 5});
    return span();
  }

  Lmap lmap_;
  std::vector<std::string> reports_;
  ScriptedUser person_{[this](const std::string& report) { reports_.push_back(report); }};
  SllistGrid grid_{lmap_, person_};
};

TEST_F(SllistGridTest, NumbersAndQuantitiesHaveMoreRoomThanCoordinates) {
  for (int column = 2; column < grid_.column_count(); ++column) EXPECT_EQ(grid_.column_width(column), 54);
  EXPECT_GT(grid_.column_width(0), 54);
  EXPECT_GT(grid_.column_width(1), grid_.column_width(0));
}

TEST_F(SllistGridTest, HasTheShapeOfTheList) {
  EXPECT_EQ(grid_.column_count(), 34);
  EXPECT_EQ(grid_.row_count(), 60);
  EXPECT_EQ(grid_.fixed_rows(), 1);
  EXPECT_EQ(grid_.fixed_columns(), 0);
  EXPECT_EQ(grid_.default_column_width(), 54);
  EXPECT_FALSE(grid_.editable({1, 1}));
  EXPECT_FALSE(grid_.always_shows_editor());
}

TEST_F(SllistGridTest, NamesItsColumns) {
  EXPECT_EQ(grid_.text({0, 0}), "nr");
  EXPECT_EQ(grid_.text({1, 0}), "quantity");
  EXPECT_EQ(grid_.text({2, 0}), "l");
  EXPECT_EQ(grid_.text({3, 0}), "n");
  EXPECT_EQ(grid_.text({4, 0}), "k1");
  EXPECT_EQ(grid_.text({33, 0}), "k30");
}

TEST_F(SllistGridTest, ListsNothingOfAnEmptyStore) {
  grid_.show();
  for (const Name key : {Name::up, Name::down, Name::page_down, Name::last_page, Name::first_page}) {
    grid_.press({key});
    for (int row = 1; row < grid_.row_count(); ++row) {
      for (int column = 0; column < grid_.column_count(); ++column) {
        ASSERT_EQ(grid_.text({column, row}), "");
      }
    }
  }
}

TEST_F(SllistGridTest, ListsPointsInKeyOrderWithNumberQuantityAndKey) {
  Lk key;
  for (std::size_t i = 0; i < key.coo.size(); ++i) key.coo[i] = 100 + static_cast<std::int32_t>(i);
  lmap_.set(key, cotyp(1, 2, 3, 4));
  lmap_.set(Lk::at(-3, 5), cotyp::floating(1.0 / 3.0, 0.0));
  grid_.show();
  EXPECT_EQ(grid_.text({0, 1}), "1");
  EXPECT_EQ(grid_.text({1, 1}), "0.333333333333333");
  EXPECT_EQ(grid_.text({2, 1}), "-3");
  EXPECT_EQ(grid_.text({3, 1}), "5");
  EXPECT_EQ(grid_.text({0, 2}), "2");
  EXPECT_EQ(grid_.text({1, 2}), "1/2+3/4i");
  EXPECT_EQ(grid_.text({2, 2}), "131");
  for (int column = 3; column < 34; ++column) EXPECT_EQ(grid_.text({column, 2}), int_text(97 + column));
  EXPECT_EQ(grid_.text({0, 3}), "");
}

TEST_F(SllistGridTest, ScrollsByAPoint) {
  fill(0, 199);
  EXPECT_EQ(span(), "1:0 59:58");
  EXPECT_EQ(after(Name::up), "1:0 59:58");
  EXPECT_EQ(after(Name::down), "2:1 60:59");
  EXPECT_EQ(after(Name::down), "3:2 61:60");
  EXPECT_EQ(after(Name::up), "2:1 60:59");
}

TEST_F(SllistGridTest, ScrollsByAPageLessOneRow) {
  fill(0, 199);
  EXPECT_EQ(after(Name::page_down), "59:58 117:116");
  EXPECT_EQ(after(Name::page_down), "117:116 175:174");
  EXPECT_EQ(after(Name::page_down), "142:141 200:199");
  EXPECT_EQ(after(Name::page_down), "142:141 200:199");
  EXPECT_EQ(after(Name::down), "142:141 200:199");
  EXPECT_EQ(after(Name::page_up), "84:83 142:141");
  EXPECT_EQ(after(Name::page_up), "26:25 84:83");
  EXPECT_EQ(after(Name::page_up), "1:0 59:58");
}

TEST_F(SllistGridTest, GoesToTheFirstAndTheLastPage) {
  fill(-100, 99);
  EXPECT_EQ(after(Name::last_page), "142:41 200:99");
  EXPECT_EQ(after(Name::first_page), "1:-100 59:-42");
}

TEST_F(SllistGridTest, TheEndsOfTheKeyRangeBelongToTheFirstAndTheLastPage) {
  fill(0, 99);
  lmap_.set(Lk::filled(lowest_int), 1);
  lmap_.set(Lk::filled(highest_int), 1);
  EXPECT_EQ(after(Name::last_page), "44:42 102:2147483647");
  EXPECT_EQ(after(Name::first_page), "1:-2147483648 59:57");
}

TEST_F(SllistGridTest, TheRightButtonAsksForTheFirstStep) {
  fill(0, 199);
  EXPECT_EQ(after_start_at("70"), "71:70 129:128");
  EXPECT_EQ(reports_.back(),
            "dialog: New list start: To display lattice listing\n  beginning with n_start = a\n"
            "  enter integer a -> 70");
  EXPECT_EQ(after_start_at("-5"), "1:0 59:58");
  EXPECT_EQ(after_start_at("199"), "142:141 200:199");
  EXPECT_EQ(after_start_at("2147483647"), "142:141 200:199");
}

TEST_F(SllistGridTest, ACancelledDialogAndOtherButtonsChangeNothing) {
  fill(0, 199);
  after_start_at("70");
  person_.set_answers({});
  grid_.click(GridClick::right, {5, 5});
  EXPECT_EQ(span(), "71:70 129:128");
  const std::size_t reports = reports_.size();
  grid_.click(GridClick::left, {5, 6});
  grid_.click(GridClick::double_click, {5, 7});
  EXPECT_EQ(reports_.size(), reports);
  EXPECT_EQ(span(), "71:70 129:128");
}

TEST_F(SllistGridTest, TheDialogStartsWithTheListedStep) {
  struct Asked final : Questions {
    bool yes_no(const std::string&) override { return false; }
    bool all_or_ok(const std::string&) override { return false; }
    std::optional<std::string> input(const InputDialog& dialog, const Accept&) override {
      preset = dialog.preset;
      return std::nullopt;
    }
    std::optional<std::filesystem::path> open_file(const std::string&) override { return std::nullopt; }
    std::optional<std::filesystem::path> save_file(const std::string&,
                                                   const std::filesystem::path&) override {
      return std::nullopt;
    }
    std::string preset;
  } asked;
  SllistGrid grid(lmap_, asked);
  grid.click(GridClick::right, {1, 1});
  EXPECT_EQ(asked.preset, "0");
  lmap_.set(Lk::at(0, -7), 1);
  grid.show();
  grid.click(GridClick::right, {1, 1});
  EXPECT_EQ(asked.preset, "-7");
}

TEST_F(SllistGridTest, AJumpCountsPointsAndNotRows) {
  for (std::int32_t k = 0; k < 50; ++k) {
    lmap_.set(Lk::at(0, 3, k), 1);
    lmap_.set(Lk::at(0, 8, k), 1);
    lmap_.set(Lk::at(1, 8, k), 1);
  }
  EXPECT_EQ(after_start_at("4"), "51:8 109:8");
  EXPECT_EQ(grid_.text({2, 1}), "0");
  EXPECT_EQ(grid_.text({2, 2}), "1");
  EXPECT_EQ(grid_.text({4, 2}), "0");
}

TEST_F(SllistGridTest, ASmallStoreIsListedFromItsFirstPoint) {
  fill(0, 57);
  EXPECT_EQ(after_start_at("30"), "1:0 58:57");
  EXPECT_EQ(grid_.text({0, 59}), "");
  EXPECT_EQ(after(Name::last_page), "1:0 58:57");
  EXPECT_EQ(after(Name::down), "1:0 58:57");
  EXPECT_EQ(after(Name::page_down), "1:0 58:57");
  fill(58, 58);
  EXPECT_EQ(after(Name::last_page), "1:0 59:58");
  fill(59, 59);
  EXPECT_EQ(after(Name::last_page), "2:1 60:59");
}

TEST_F(SllistGridTest, ListsFromTheNextPointWhenTheStartIsDeleted) {
  fill(0, 199);
  after_start_at("70");
  lmap_.erase(Lk::at(0, 70));
  grid_.show();
  EXPECT_EQ(span(), "71:71 129:129");
}

TEST_F(SllistGridTest, ShowingCountsAnew) {
  fill(0, 199);
  after_start_at("100");
  lmap_.erase_rows(0, 49);
  grid_.show();
  EXPECT_EQ(span(), "51:100 109:158");
  lmap_.erase_rows(150, 199);
  grid_.show();
  EXPECT_EQ(span(), "42:91 100:149");
  lmap_.clear();
  grid_.show();
  EXPECT_EQ(grid_.text({0, 1}), "");
  fill(0, 9);
  EXPECT_EQ(span(), "1:0 10:9");
}

TEST_F(SllistGridTest, KeepsTheListedPointsUntilItIsBuiltAnew) {
  fill(0, 9);
  lmap_.clear();
  EXPECT_EQ(span(), "1:0 10:9");
}

TEST_F(SllistGridTest, TakesTheNumberOfRowsInView) {
  fill(0, 199);
  after_start_at("70");
  grid_.set_visible_rows(10);
  EXPECT_EQ(grid_.row_count(), 11);
  EXPECT_EQ(span(), "71:70 80:79");
  EXPECT_EQ(after(Name::page_down), "80:79 89:88");
  grid_.set_visible_rows(150);
  EXPECT_EQ(span(), "51:50 200:199");
  grid_.set_visible_rows(0);
  EXPECT_EQ(grid_.row_count(), 2);
  EXPECT_EQ(span(), "51:50 51:50");
}

TEST_F(SllistGridTest, ResizingDoesNotCountAnew) {
  fill(0, 199);
  after_start_at("70");
  lmap_.erase_rows(0, 9);
  grid_.set_visible_rows(10);
  EXPECT_EQ(span(), "71:70 80:79");
  grid_.show();
  EXPECT_EQ(span(), "61:70 70:79");
}

TEST_F(SllistGridTest, TheFirstPointIsNumberOneEvenWithoutCounting) {
  fill(0, 199);
  after_start_at("100");
  lmap_.erase_rows(0, 99);
  grid_.set_visible_rows(10);
  EXPECT_EQ(span(), "1:100 10:109");
}

TEST_F(SllistGridTest, KeepsTheSelectedCellInView) {
  grid_.select({5, 40});
  grid_.set_visible_rows(10);
  EXPECT_EQ(grid_.selected(), (GridCell{5, 10}));
}

TEST_F(SllistGridTest, LeavesOtherKeysToTheGridAndKeepsTheSelection) {
  EXPECT_FALSE(grid_.key(GridKey::of('5')));
  EXPECT_FALSE(grid_.key({Name::enter}));
  EXPECT_FALSE(grid_.key({Name::tab}));
  EXPECT_TRUE(grid_.key({Name::down}));
  EXPECT_EQ(grid_.selected(), (GridCell{1, 1}));
}

TEST_F(SllistGridTest, SaysThatItChanged) {
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  grid_.show();
  grid_.press({Name::down});
  grid_.press({Name::last_page});
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace kov
