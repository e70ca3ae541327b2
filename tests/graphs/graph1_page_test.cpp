#include "graphs/graph1_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "graphs/graph1_desk.h"
#include "support/plain_measure.h"

namespace kov {
namespace {

constexpr const char* invitation = " Click on checkboxes to draw Sums1 along x";

struct PageDesk : Graph1Desk {
  RangeTables tables;
  bool oplot = false;
  std::string file = "walk.aa1";
  PlainMeasure measure;
  Graph1Page page{{lmap, tables, cph, checked, oplot, [this] { return file; }}, messages, progress};
  int changes = 0;

  PageDesk() {
    tables.current_table() = table;
    page.set_changed([this] { ++changes; });
    cph.setkmi_1("Graph_EntryCountPerDisplay", 1);
  }

  /// Whether it calculated since the last look.
  bool calculated() {
    const bool any = !progress.calls.empty();
    progress.calls.clear();
    return any;
  }
};

bool says(const Picture& picture, const std::string& text) {
  return std::any_of(picture.texts.begin(), picture.texts.end(), [&](const PictureText& candidate) {
    return candidate.text.find(text) != std::string::npos;
  });
}

TEST(Graph1Page, AnEmptyStoreHasNoLabel) {
  PageDesk desk;
  EXPECT_EQ(desk.page.label(), "");
  desk.page.show();
  EXPECT_EQ(desk.page.label(), "");
  EXPECT_FALSE(desk.page.drawn());
  EXPECT_EQ(desk.changes, 1);
}

TEST(Graph1Page, TheLabelSaysWhyNothingIsDrawn) {
  PageDesk desk;
  desk.set(0, 1);
  desk.page.show();
  EXPECT_EQ(desk.page.label(), invitation);
  EXPECT_TRUE(desk.page.drawn());
  desk.page.set_image_size(0, 700);
  desk.page.show();
  EXPECT_EQ(desk.page.label(), "No pixel");
  EXPECT_FALSE(desk.page.drawn());
  desk.page.set_image_size(1000, 700);
  desk.checked = {};
  desk.page.show();
  EXPECT_EQ(desk.page.label(), " cnt=0");
  EXPECT_FALSE(desk.page.drawn());
  desk.checked = checks({cb1qre});
  desk.page.show();
  EXPECT_EQ(desk.page.label(), " no different x");
  EXPECT_FALSE(desk.page.drawn());
  desk.lmap.clear();
  desk.page.show();
  EXPECT_EQ(desk.page.label(), "");
}

TEST(Graph1Page, CalculatesForAThousandColumnsAtFirst) {
  PageDesk desk;
  desk.set(0, 1);
  desk.page.show();
  EXPECT_EQ(desk.page.par().hpixcount, 1000);
  EXPECT_EQ(desk.page.par().vpixcount, 700);
}

TEST(Graph1Page, ACheckBoxRecalculates) {
  PageDesk desk;
  desk.set(0, 1);
  desk.set(9, 1, 1);
  desk.page.show();
  EXPECT_TRUE(desk.calculated());
  desk.checked = checks({cb0qre, cb1qre});
  desk.page.check_box_changed();
  EXPECT_TRUE(desk.calculated());
  EXPECT_EQ(desk.page.par().xmax, 10);
  EXPECT_EQ(desk.changes, 2);
}

TEST(Graph1Page, WithTheCommonScaleACheckBoxOnlyDraws) {
  PageDesk desk;
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  desk.set(0, 1);
  desk.set(9, 1, 1);
  desk.page.show();
  EXPECT_TRUE(desk.calculated());
  desk.checked = checks({cb1qre});
  desk.page.check_box_changed();
  EXPECT_FALSE(desk.calculated());
  EXPECT_EQ(desk.page.table().rows, (std::vector<std::vector<double>>{{9, 1}}));
  desk.checked = {};
  desk.page.check_box_changed();
  EXPECT_EQ(desk.page.label(), " cnt=0");
  EXPECT_FALSE(desk.page.drawn());
  desk.checked = checks({cb0qre});
  desk.page.check_box_changed();
  EXPECT_FALSE(desk.calculated());
  EXPECT_EQ(desk.page.label(), invitation);
  EXPECT_TRUE(desk.page.drawn());
  EXPECT_EQ(desk.changes, 4);
}

TEST(Graph1Page, WithoutACalculationACheckBoxMakesOne) {
  PageDesk desk;
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  desk.set(0, 1);
  desk.checked = {};
  desk.page.show();
  EXPECT_FALSE(desk.page.drawn());
  desk.checked = checks({cb0qre});
  desk.page.check_box_changed();
  EXPECT_TRUE(desk.calculated());
  EXPECT_TRUE(desk.page.drawn());
}

TEST(Graph1Page, BreakLeavesNoDrawingAndTheNextClickCalculates) {
  PageDesk desk;
  desk.cph.setkmi_1("Graph1_quick_xscale_r12_common", 1);
  desk.set(0, 1);
  desk.page.fit(400, 300, desk.measure);
  desk.page.show();
  desk.progress.break_at = 4;
  desk.page.show();
  EXPECT_FALSE(desk.page.drawn());
  EXPECT_EQ(desk.page.label(), invitation);
  EXPECT_TRUE(desk.page.table().rows.empty());
  EXPECT_TRUE(says(desk.page.picture(400, 300, desk.measure), "Click on checkboxes"));
  desk.page.check_box_changed();
  EXPECT_TRUE(desk.page.drawn());
}

TEST(Graph1Page, AFailureIsReportedAndLeavesNoDrawing) {
  PageDesk desk;
  desk.set(0, cotyp::floating(1e200, 0));
  desk.page.show();
  EXPECT_FALSE(desk.page.drawn());
  EXPECT_EQ(desk.page.label(), invitation);
  EXPECT_EQ(desk.messages.texts(),
            std::vector<std::string>{" MathError when calculating G1Par: \nfloating point overflow"});
}

TEST(Graph1Page, WhileItCalculatesNothingIsDrawn) {
  PageDesk desk;
  desk.set(0, 1);
  desk.page.show();
  int looks = 0;
  desk.progress.on_headline = [&] {
    ++looks;
    EXPECT_FALSE(desk.page.drawn());
    EXPECT_TRUE(desk.page.table().rows.empty());
    // The progress box may let the page paint itself, in another size too.
    EXPECT_TRUE(says(desk.page.picture(300, 200, desk.measure), "Click on"));
  };
  desk.page.show();
  EXPECT_EQ(looks, 2);
  EXPECT_TRUE(desk.page.drawn());
}

TEST(Graph1Page, TheOplotLabelOnlyDraws) {
  PageDesk desk;
  desk.set(0, 1);
  desk.page.show();
  desk.calculated();
  desk.oplot = true;
  desk.page.oplot_changed();
  EXPECT_FALSE(desk.calculated());
  EXPECT_EQ(desk.changes, 2);
}

TEST(Graph1Page, WarnsWhereThereAreNotTwoCurvesForAnOplot) {
  PageDesk desk;
  desk.set(0, 1);
  desk.oplot = true;
  desk.page.show();
  const std::vector<RecordedMessage> expected = {{MessageKind::warning, "oplot: not 2 but 1 valid curves"}};
  EXPECT_EQ(desk.messages.shown, expected);
  desk.messages.shown.clear();
  desk.checked = checks({cb0qre, cb0qim});
  desk.page.check_box_changed();
  EXPECT_TRUE(desk.messages.shown.empty());
  desk.checked = checks({cb0qre, cb0qim, cb0qa});
  desk.page.check_box_changed();
  EXPECT_EQ(desk.messages.texts(), std::vector<std::string>{"oplot: not 2 but 3 valid curves"});
  desk.messages.shown.clear();
  desk.oplot = false;
  desk.page.oplot_changed();
  desk.oplot = true;
  desk.checked = {};
  desk.page.check_box_changed();
  desk.lmap.clear();
  desk.page.show();
  EXPECT_TRUE(desk.messages.shown.empty()) << "nothing is drawn";
}

/// A window that is resized is no reason to tell it again.
TEST(Graph1Page, AnotherSizeDoesNotWarnAgain) {
  PageDesk desk;
  desk.set(0, 1);
  desk.oplot = true;
  desk.page.picture(400, 300, desk.measure);
  EXPECT_EQ(desk.messages.texts(), std::vector<std::string>{"oplot: not 2 but 1 valid curves"})
      << "a page that was never shown is";
  desk.calculated();
  desk.messages.shown.clear();
  const int changes = desk.changes;
  desk.page.picture(500, 300, desk.measure);
  EXPECT_TRUE(desk.calculated());
  EXPECT_EQ(desk.changes, changes + 1);
  EXPECT_TRUE(desk.messages.shown.empty());
}

TEST(Graph1Page, GroupCaptionsAreThoseOfTheCalculation) {
  PageDesk desk;
  EXPECT_EQ(desk.page.group_caption(0), "SR1:");
  desk.set(0, 1);
  desk.cph.setkmi_1("Graph1_divmode", 2);
  EXPECT_EQ(desk.page.group_caption(0), "SR1:");
  desk.page.show();
  EXPECT_EQ(desk.page.group_caption(0), "SR1/SR2:");
  EXPECT_EQ(desk.page.group_caption(1), "SR2:");
}

TEST(Graph1Page, APictureOfAFittedPageIsNotCalculatedAgain) {
  PageDesk desk;
  desk.set(0, 1);
  desk.page.fit(400, 300, desk.measure);
  desk.page.show();
  EXPECT_TRUE(desk.calculated());
  const Picture picture = desk.page.picture(400, 300, desk.measure);
  EXPECT_FALSE(desk.calculated());
  EXPECT_LT(desk.page.par().hpixcount, 400);
  EXPECT_TRUE(says(picture, "walk.aa1, range table 0"));
  // Another height has the same columns.
  desk.page.picture(400, 350, desk.measure);
  EXPECT_FALSE(desk.calculated());
  desk.page.picture(500, 300, desk.measure);
  EXPECT_TRUE(desk.calculated());
}

TEST(Graph1Page, APictureWithoutADrawingShowsTheLabel) {
  PageDesk desk;
  desk.set(0, 1);
  desk.checked = {};
  const Picture picture = desk.page.picture(400, 300, desk.measure);
  ASSERT_EQ(picture.texts.size(), 1U);
  EXPECT_TRUE(says(picture, "cnt=0"));
}

TEST(Graph1Page, TheTableHasARowForEachColumnOfTheDrawnRanges) {
  PageDesk desk;
  desk.set(0, cotyp(1, 1, 2, 1));
  desk.set(2, 5);
  desk.set(4, 7, 1);
  desk.checked = checks({cb0qre, cb0qim});
  desk.page.show();
  EXPECT_EQ(desk.page.table().heading, (std::vector<std::string>{"k1", "SR1: qre", "SR1: qim"}));
  EXPECT_EQ(desk.page.table().rows, (std::vector<std::vector<double>>{{0, 1, 2}, {2, 5, 0}}));
  desk.checked = checks({cb0qre, cb1qre});
  desk.page.check_box_changed();
  EXPECT_EQ(desk.page.table().rows, (std::vector<std::vector<double>>{{0, 1, 0}, {2, 5, 0}, {4, 0, 7}}));
  desk.checked = {};
  desk.page.check_box_changed();
  EXPECT_TRUE(desk.page.table().heading.empty());
}

/// Where ranges share a column, the smaller x stands for it.
TEST(Graph1Page, TheTableTakesTheSmallestXOfAColumn) {
  PageDesk desk;
  desk.set(5, 1);
  desk.set(3, 2, 1);
  desk.checked = checks({cb0qre, cb1qre});
  desk.page.set_image_size(1, 10);
  desk.page.show();
  EXPECT_EQ(desk.page.table().rows, (std::vector<std::vector<double>>{{3, 1, 2}}));
}

}  // namespace
}  // namespace kov
