#include "workbench/check_boxes.h"

#include <gtest/gtest.h>

#include <string>

#include "workbench/desk.h"

namespace kov {
namespace {

constexpr const char* graph1_names[] = {"CB0qre", "CB0qim", "CB0qq", "CB0qa", "CB0cntAt",
                                        "CB1qre", "CB1qim", "CB1qq", "CB1qa", "CB1cntAt"};

TEST(CheckBoxes, DestinationsAreCheckedAtFirst) {
  Desk desk;
  EXPECT_EQ(desk.workbench.range_is_destination, (RangeDestinations{true, true}));
  EXPECT_TRUE(set_check_box(desk.workbench, "CB_Range1IsDest", false));
  EXPECT_EQ(desk.workbench.range_is_destination, (RangeDestinations{false, true}));
  EXPECT_TRUE(set_check_box(desk.workbench, "CB_Range2IsDest", false));
  EXPECT_TRUE(set_check_box(desk.workbench, "CB_Range1IsDest", true));
  EXPECT_EQ(desk.workbench.range_is_destination, (RangeDestinations{true, false}));
}

TEST(CheckBoxes, OfGraph1AreWrittenBackToTheirParameters) {
  Desk desk;
  for (std::size_t i = 0; i < std::size(graph1_names); ++i) {
    const std::string keyword = std::string("Graph1_") + graph1_names[i] + "_checked";
    for (const bool checked : {true, false}) {
      EXPECT_TRUE(set_check_box(desk.workbench, graph1_names[i], checked));
      EXPECT_EQ(desk.workbench.graph1_checked[i], checked) << keyword;
      EXPECT_EQ(desk.document().cph.kmi(keyword), checked ? 1 : 0) << keyword;
    }
  }
}

TEST(CheckBoxes, OfGraph1AreNotWrittenBackWithoutStateSaving) {
  Desk desk;
  desk.document().cph.setkmi_1("Graph1_CB_state_saving", 0);
  EXPECT_TRUE(set_check_box(desk.workbench, "CB1qa", true));
  EXPECT_TRUE(desk.workbench.graph1_checked[8]);
  EXPECT_EQ(desk.document().cph.kmi("Graph1_CB1qa_checked"), 0);
}

TEST(CheckBoxes, OtherNamesAreUnknown) {
  Desk desk;
  for (const char* name : {"", "CB2qre", "cb0qre", "CB_Range3IsDest"}) {
    EXPECT_FALSE(set_check_box(desk.workbench, name, true)) << name;
  }
}

TEST(CheckBoxes, TakeTheirStatesFromTheParameters) {
  Desk desk;
  EXPECT_TRUE(desk.workbench.graph1_checked[0]) << "the catalogue's default";
  for (std::size_t i = 0; i < std::size(graph1_names); ++i) {
    desk.document().cph.setkmi_1(std::string("Graph1_") + graph1_names[i] + "_checked", i % 2 == 0 ? 0 : 1);
  }
  take_check_box_from_parameter(desk.workbench, "Graph1_CB0qre_checked");
  EXPECT_FALSE(desk.workbench.graph1_checked[0]);
  EXPECT_FALSE(desk.workbench.graph1_checked[1]);
  take_check_boxes_from_parameters(desk.workbench);
  for (std::size_t i = 0; i < std::size(graph1_names); ++i) {
    EXPECT_EQ(desk.workbench.graph1_checked[i], i % 2 != 0) << graph1_names[i];
  }
}

}  // namespace
}  // namespace kov
