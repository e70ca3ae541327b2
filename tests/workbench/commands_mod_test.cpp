#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/points_text.h"
#include "workbench/desk.h"

namespace kov {
namespace {

constexpr const char* float_question =
    "Do you want irreversible conversion\nof all quantities to floating point?";
constexpr const char* invert_question =
    "Actually all quantities of lattice are\nrepresented regularly (non-inverted).\nDo you want inverted "
    "representation\nof nonzero quantities in the form 1/quantity?";
constexpr const char* revert_question =
    "Actually nonzero quantities of lattice are\nrepresented in inverted form (1/quantity).\nDo you again "
    "want "
    "regular representation\nof all quantities?";

TEST(Mod, InitWith1WritesTheOriginOfLattice0) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 3), cotyp(7));
  EXPECT_EQ(desk.run_text("Mod", "Init n=0 with 1"), "");
  EXPECT_EQ(desk.rows(), "0:1 3:7");
  EXPECT_EQ(desk.person.caption(), "nlast = 3 (0.352 KB = 2e)");
}

TEST(Mod, InitWith1_1WritesTheOriginsOfTwoLattices) {
  Desk desk;
  desk.run("Mod", "Init n=0 with 1_1");
  EXPECT_EQ(desk.lmap().count(), 2U);
  EXPECT_EQ(desk.lmap().get(Lk::at(0, 0)), cotyp(1));
  EXPECT_EQ(desk.lmap().get(Lk::at(1, 0)), cotyp(1));
}

TEST(Mod, InitForTestWritesABlockOfTenBySix) {
  Desk desk;
  desk.run("Mod", "Init For Test");
  EXPECT_EQ(desk.lmap().count(), 60U);
  Lk corner = Lk::at(0, 0, 9);
  corner.coo[2] = 5;
  EXPECT_EQ(desk.lmap().get(corner), cotyp(10, 6, 0, 1));
  EXPECT_EQ(desk.lmap().get(Lk::at(0, 0, 4)), cotyp(5));
}

TEST(Mod, SetDefaultOffsetTakesAxesAndOffsetsFromTheParameters) {
  Desk desk;
  desk.document().cph.setkmi_1("Slq_xdim_default", 3);
  desk.document().cph.setkmi_1("Slq_xoffset_default", -9);
  desk.document().slice.set_offset(Lk::filled(5));
  desk.run("Mod", "Set Default Offset");
  EXPECT_EQ(desk.document().slice.xdim(), 3);
  Lk expected;
  expected.coo[3] = -9;
  EXPECT_EQ(desk.document().slice.offset(), expected);
}

TEST(Mod, AllToFloatConvertsAfterAYes) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 0), cotyp(1, 2, 0, 1));
  EXPECT_EQ(desk.run_text("Mod", "All to Float", {"yes"}), question_report(float_question, "yes"));
  EXPECT_FALSE(desk.lmap().get(Lk::at(0, 0)).re.exact());
  EXPECT_FALSE(desk.lmap().get(Lk::at(0, 0)).im.exact());
}

TEST(Mod, AllToFloatLeavesEverythingAfterANo) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 0), cotyp(1, 2, 0, 1));
  EXPECT_EQ(desk.run_text("Mod", "All to Float", {"no"}), question_report(float_question, "no"));
  EXPECT_TRUE(desk.lmap().get(Lk::at(0, 0)).re.exact());
}

TEST(Mod, InvertTogglesTheStore) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 0), cotyp(2));
  desk.lmap().set(Lk::at(0, 1), cotyp(0, 1, 1, 3));
  EXPECT_EQ(desk.run_text("Mod", "Invert", {"yes"}),
            question_report(invert_question, "yes") + "\nmessage: 2   nonzero quantities inverted");
  EXPECT_EQ(desk.rows(), "0:1/2 1:-3i");
  EXPECT_TRUE(desk.document().inverted);
  EXPECT_EQ(desk.run_text("Mod", "Invert", {"yes"}),
            question_report(revert_question, "yes") + "\nmessage: 2   nonzero quantities inverted");
  EXPECT_EQ(desk.rows(), "0:2 1:1/3i");
  EXPECT_FALSE(desk.document().inverted);
}

TEST(Mod, InvertLeavesEverythingAfterANo) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 0), cotyp(2));
  EXPECT_EQ(desk.run_text("Mod", "Invert", {"no"}), question_report(invert_question, "no"));
  EXPECT_EQ(desk.rows(), "0:2");
  EXPECT_FALSE(desk.document().inverted);
}

TEST(Mod, InvertReportsAnInverseThatIsNotFiniteAndLeavesEverything) {
  Desk desk;
  desk.lmap().set(Lk::at(0, 0), cotyp(2));
  desk.lmap().set(Lk::at(0, 1), cotyp::floating(std::numeric_limits<double>::denorm_min(), 0.0));
  const std::string before = points_text(desk.lmap());
  const auto reports = desk.run("Mod", "Invert", {"yes"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[1], "beep");
  EXPECT_EQ(reports[2].substr(0, 28), "error: MathError in Invert:\n");
  EXPECT_EQ(points_text(desk.lmap()), before);
  EXPECT_FALSE(desk.document().inverted);
}

}  // namespace
}  // namespace kov
