#include "config/config_grid.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"

namespace kov {
namespace {

using Name = GridKey::Name;

constexpr int value_column = 4;

/// A parameter holder whose catalogue is defined from the start.
struct DefinedParameters {
  explicit DefinedParameters(const WindowFacts& window) { cph.InitPrgPar(window); }

  RecordingMessages messages;
  cphclass cph{messages};
};

class ConfigGridTest : public ::testing::Test {
 protected:
  void SetUp() override {
    grid_.set_parameter_changed([this](const std::string& keyword) { changed_.push_back(keyword); });
  }

  /// The row that shows a keyword.
  int row_of(const std::string& keyword) const {
    for (int row = 1; row < grid_.row_count(); ++row) {
      if (grid_.text({2, row}) == keyword) return row;
    }
    ADD_FAILURE() << keyword << " is not shown";
    return 1;
  }
  std::string value(const std::string& keyword) const { return grid_.text({value_column, row_of(keyword)}); }

  void edit(const std::string& keyword, const std::string& text) {
    grid_.select({value_column, row_of(keyword)});
    grid_.edit(text);
    grid_.leave();
  }

  void forget(const std::string& keyword) {
    Kmap poorer = cph_.kmap();
    poorer.erase(keyword);
    cph_.restore(poorer);
  }

  /// Sets a value without regard to the bounds, as a data file's line can.
  void force(const std::string& keyword, std::int32_t i) {
    Kmap widened = cph_.kmap();
    widened.at(keyword).i = i;
    cph_.restore(widened);
  }

  void expect_error(const std::string& text) {
    EXPECT_EQ(messages_.shown, (std::vector<RecordedMessage>{{MessageKind::error, text}}));
    EXPECT_EQ(messages_.beeps, 1);
  }
  void expect_silence() {
    EXPECT_TRUE(messages_.shown.empty());
    EXPECT_EQ(messages_.beeps, 0);
  }

  WindowFacts window_{.height = 611, .width = 1012, .top = 13, .left = 14, .page_count = 9};
  DefinedParameters parameters_{window_};
  RecordingMessages& messages_ = parameters_.messages;
  cphclass& cph_ = parameters_.cph;
  ConfigGrid grid_{cph_, window_, messages_};
  std::vector<std::string> changed_;
};

// What it shows

TEST_F(ConfigGridTest, HasARowForEachParameterAndAHeading) {
  EXPECT_EQ(grid_.row_count(), 86);
  EXPECT_EQ(grid_.column_count(), 5);
  EXPECT_EQ(grid_.fixed_rows(), 1);
  EXPECT_EQ(grid_.text({0, 0}), "row");
  EXPECT_EQ(grid_.text({1, 0}), "r");
  EXPECT_EQ(grid_.text({2, 0}), "          keyword");
  EXPECT_EQ(grid_.text({3, 0}), "          description");
  EXPECT_EQ(grid_.text({4, 0}), "     i");
}

TEST_F(ConfigGridTest, ShowsTheCatalogueInTheOrderOfItsKeywords) {
  int row = 0;
  for (const auto& [keyword, parameter] : cph_.kmap()) {
    ++row;
    EXPECT_EQ(grid_.text({0, row}), std::to_string(row));
    EXPECT_EQ(grid_.text({1, row}), parameter.ucfg ? "u" : "");
    EXPECT_EQ(grid_.text({2, row}), keyword);
    EXPECT_EQ(grid_.text({3, row}), parameter.description);
    EXPECT_EQ(grid_.text({4, row}), std::to_string(parameter.i));
  }
  EXPECT_EQ(row, 85);
  EXPECT_EQ(grid_.text({2, 1}), "Algadd_DefaultStepCount");
  EXPECT_EQ(grid_.text({1, 1}), "");
  EXPECT_EQ(grid_.text({3, 1}), "default number of steps of Algadd");
  EXPECT_EQ(grid_.text({4, 1}), "1");
  EXPECT_EQ(grid_.text({1, row_of("Slq_ColCount")}), "u");
  EXPECT_EQ(value("F1_Screen_Default_Height"), "611");
}

TEST_F(ConfigGridTest, OnlyValuesAreEdited) {
  for (int column = 0; column < 5; ++column) {
    EXPECT_FALSE(grid_.editable({column, 0}));
    EXPECT_EQ(grid_.editable({column, 1}), column == value_column);
    EXPECT_EQ(grid_.editable({column, 85}), column == value_column);
  }
  EXPECT_EQ(grid_.selected(), (GridCell{value_column, 1}));
  EXPECT_FALSE(grid_.always_shows_editor());
}

TEST_F(ConfigGridTest, GivesItsColumnsTheWidthsOfTheirTexts) {
  EXPECT_LT(grid_.column_width(1), grid_.column_width(0));
  EXPECT_LT(grid_.column_width(0), grid_.column_width(4));
  EXPECT_LT(grid_.column_width(4), grid_.column_width(2));
  EXPECT_LT(grid_.column_width(2), grid_.column_width(3));
}

TEST_F(ConfigGridTest, IsFilledWhenItIsShown) {
  cph_.setkmi_1("Slq_ColCount", 33);
  EXPECT_EQ(value("Slq_ColCount"), "20");
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  grid_.press(GridKey::of('7'));
  grid_.show();
  EXPECT_EQ(value("Slq_ColCount"), "33");
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(grid_.edited());
  EXPECT_EQ(cph_.kmi("Algadd_DefaultStepCount"), 1) << "an edit that was not taken is given up";
}

TEST_F(ConfigGridTest, HintsAtRangeAndDefault) {
  const auto hint = [this](const std::string& keyword) { return grid_.hint({3, row_of(keyword)}); };
  cph_.setkmi_1("Sums1_DefaultTableIndex", 9);
  cph_.setkmi_1("Slq_ColCount", 9);
  grid_.show();
  EXPECT_EQ(hint("Sums1_DefaultTableIndex"), "Sums1_DefaultTableIndex [0<=i<=31]\ndefault: 0");
  EXPECT_EQ(hint("Slq_ColCount"),
            "Slq_ColCount [2<=i<=1000]\ndefault: 20\nu: part of the uniform configuration");
  EXPECT_EQ(hint("Algadd_DefaultStepCount"), "Algadd_DefaultStepCount [1<=i]\ndefault: 1");
  EXPECT_EQ(hint("Sums2_n_second"), "Sums2_n_second\ndefault: 1");
  EXPECT_EQ(hint("F1_Initial_Active_Page"), "F1_Initial_Active_Page [0<=i<=8]\ndefault: 0");
  EXPECT_EQ(hint("F1_Screen_Default_Left"),
            "F1_Screen_Default_Left\ndefault: 14\nu: part of the uniform configuration");
  EXPECT_EQ(grid_.hint({3, 0}), "");
}

// Cells and catalogue

TEST_F(ConfigGridTest, UpdatesTheCellsOfOneRow) {
  cph_.setkmi_1("Slq_ColCount", 33);
  cph_.setkmi_1("Slq_RowCount", 44);
  Kmap renamed = cph_.kmap();
  renamed.at("Slq_ColCount").description = "columns";
  cph_.restore(renamed);
  const int row = row_of("Slq_ColCount");
  grid_.UpdateSlconfigCellFromcph(row);
  EXPECT_EQ(grid_.text({3, row}), "columns");
  EXPECT_EQ(grid_.text({4, row}), "33");
  EXPECT_EQ(value("Slq_RowCount"), "50");
  expect_silence();
}

TEST_F(ConfigGridTest, ReportsAKeywordThatCannotBeShown) {
  const int row = row_of("Slq_ColCount");
  forget("Slq_ColCount");
  grid_.UpdateSlconfigCellFromcph(row);
  expect_error("UpdateSlconfigCellFromcph:\nKeyword not found in kmap");
  EXPECT_EQ(grid_.text({4, row}), "20");
}

TEST_F(ConfigGridTest, ReportsAKeywordThatCannotBeSet) {
  const int row = row_of("Slq_ColCount");
  forget("Slq_ColCount");
  grid_.CorrectSlconfigCellOrUpdatecph(row);
  expect_error("CorrectSlconfigCellOrUpdatecph:\nKeyword not found in kmap");
  EXPECT_TRUE(changed_.empty());
}

TEST_F(ConfigGridTest, TheHeadingIsNoKeyword) {
  grid_.CorrectSlconfigCellOrUpdatecph(0);
  expect_error("CorrectSlconfigCellOrUpdatecph:\nKeyword not found in kmap");
}

TEST_F(ConfigGridTest, ReportsAnEditOfAKeywordThatIsGone) {
  const int row = row_of("Slq_ColCount");
  forget("Slq_ColCount");
  grid_.select({value_column, row});
  grid_.edit("7");
  grid_.leave();
  expect_error("CorrectSlconfigCellOrUpdatecph:\nKeyword not found in kmap");
}

// Editing

TEST_F(ConfigGridTest, AnEditSetsTheParameter) {
  edit("Combtest1_nscnt", "127");
  EXPECT_EQ(cph_.kmi("Combtest1_nscnt"), 127);
  EXPECT_EQ(value("Combtest1_nscnt"), "127");
  edit("Graph2a_ny", "-99");
  EXPECT_EQ(cph_.kmi("Graph2a_ny"), -99);
  edit("Slq_xoffset_default", "-2147483648");
  EXPECT_EQ(cph_.kmi("Slq_xoffset_default"), -2147483647 - 1);
  edit("Combtest1_nscnt", "1");
  EXPECT_EQ(cph_.kmi("Combtest1_nscnt"), 1);
  EXPECT_EQ(changed_, (std::vector<std::string>{"Combtest1_nscnt", "Graph2a_ny", "Slq_xoffset_default",
                                                "Combtest1_nscnt"}));
  expect_silence();
}

TEST_F(ConfigGridTest, ASetValueShowsInItsOwnForm) {
  edit("Combtest1_nscnt", " +007 ");
  EXPECT_EQ(cph_.kmi("Combtest1_nscnt"), 7);
  EXPECT_EQ(value("Combtest1_nscnt"), "7");
}

TEST_F(ConfigGridTest, AnEditThatDoesNotFitIsUndoneInSilence) {
  for (const char* text : {"128", "0", "-1", "", " ", "x", "1.5", "4 5", "2147483648", "+-4", "4a"}) {
    edit("Combtest1_nscnt", text);
    EXPECT_EQ(cph_.kmi("Combtest1_nscnt"), 4) << text;
    EXPECT_EQ(value("Combtest1_nscnt"), "4") << text;
    EXPECT_EQ(grid_.editor_text(), "4") << text;
  }
  EXPECT_TRUE(changed_.empty());
  expect_silence();
}

TEST_F(ConfigGridTest, AValueOutsideItsBoundsStaysUntilOneWithinIsTyped) {
  force("Graph2a_ny", 150);
  grid_.show();
  EXPECT_EQ(value("Graph2a_ny"), "150");
  edit("Graph2a_ny", "150");
  EXPECT_EQ(cph_.kmi("Graph2a_ny"), 150);
  EXPECT_TRUE(changed_.empty());
  edit("Graph2a_ny", "99");
  EXPECT_EQ(cph_.kmi("Graph2a_ny"), 99);
}

TEST_F(ConfigGridTest, TheSameValueTypedAgainIsAppliedAgain) {
  edit("Algadd_DefaultTableIndex", "0");
  EXPECT_EQ(changed_, (std::vector<std::string>{"Algadd_DefaultTableIndex"}));
}

TEST_F(ConfigGridTest, AParameterIsSetAndShownBeforeItIsApplied) {
  std::string seen;
  grid_.set_parameter_changed([&](const std::string& keyword) {
    seen = keyword + " " + value(keyword) + " " + std::to_string(cph_.kmi(keyword));
    grid_.show();
  });
  edit("Slq_RowCount", "60");
  EXPECT_EQ(seen, "Slq_RowCount 60 60");
}

TEST_F(ConfigGridTest, SelectingAnotherCellTakesTheEdit) {
  const int row = row_of("Slq_RowCount");
  grid_.select({value_column, row});
  grid_.press(GridKey::of('6'));
  grid_.press(GridKey::of('0'));
  EXPECT_EQ(cph_.kmi("Slq_RowCount"), 50);
  grid_.press({Name::up});
  EXPECT_EQ(cph_.kmi("Slq_RowCount"), 60);
  EXPECT_EQ(grid_.selected(), (GridCell{value_column, row - 1}));
}

// Keys

TEST_F(ConfigGridTest, DigitsAndSignsAreTheEditors) {
  for (const char c : std::string("0123456789+-")) EXPECT_FALSE(grid_.key(GridKey::of(c))) << c;
  using enum GridKey::Name;
  for (const auto name : {tab, backspace, up, down, page_up, page_down}) EXPECT_FALSE(grid_.key({name}));
  expect_silence();
}

TEST_F(ConfigGridTest, OtherCharactersBeep) {
  for (const char c : std::string("aPMQW./ E")) EXPECT_TRUE(grid_.key(GridKey::of(c))) << c;
  EXPECT_EQ(messages_.beeps, 9);
  EXPECT_EQ(cph_.kmi("Algadd_DefaultStepCount"), 1);
}

TEST_F(ConfigGridTest, EveryCharacterBeepsWhereNothingIsEdited) {
  grid_.select({2, 1});
  grid_.press(GridKey::of('1'));
  grid_.select({value_column, 0});
  grid_.press(GridKey::of('1'));
  EXPECT_EQ(messages_.beeps, 2);
}

TEST_F(ConfigGridTest, EnterTakesTheEditAndStays) {
  grid_.press(GridKey::of('8'));
  grid_.press({Name::enter});
  EXPECT_EQ(cph_.kmi("Algadd_DefaultStepCount"), 8);
  EXPECT_EQ(grid_.selected(), (GridCell{value_column, 1}));
  grid_.press({Name::enter});
  EXPECT_EQ(changed_.size(), 1U) << "without an edit Enter does nothing";
  expect_silence();
}

TEST_F(ConfigGridTest, EscapeGivesTheEditUp) {
  int changes = 0;
  grid_.set_changed([&changes] { ++changes; });
  grid_.press(GridKey::of('8'));
  grid_.press({Name::escape});
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(grid_.editor_text(), "1");
  grid_.leave();
  EXPECT_EQ(cph_.kmi("Algadd_DefaultStepCount"), 1);
  expect_silence();
}

}  // namespace
}  // namespace kov
