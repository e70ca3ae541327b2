#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/points_text.h"
#include "text/integers.h"
#include "text/tokens.h"
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

std::string area_question(const char* pieces) {
  return std::string("According to the options N0iniarea_... ") + pieces + "\n\nDo you want this?";
}

constexpr const char* line_of_five =
    "asquare area with max. border distance2 from zero will be initializatedalong coordinate k1 (resp x) "
    "with+1. The stepping distance is1.";

/// M = 2, D = 1, S = 1.
struct AreaDesk : Desk {
  AreaDesk() {
    document().cph.setkmi_1("N0iniarea_maxcoo", 2);
    document().cph.setkmi_1("N0iniarea_dimcount", 1);
    document().cph.setkmi_1("N0iniarea_stepdist", 1);
    lmap().set(Lk::at(4, 3), cotyp(7));
    document().inverted = true;
  }
};

TEST(Mod, InitAreaReplacesTheWholeStoreAfterAYes) {
  AreaDesk desk;
  EXPECT_EQ(desk.run_text("Mod", "Init n=0 area", {"yes"}),
            question_report(area_question(line_of_five), "yes"));
  EXPECT_EQ(points_text(desk.lmap()), "0 0 -2: 1\n0 0 -1: 1\n0 0: 1\n0 0 1: 1\n0 0 2: 1\n");
  EXPECT_EQ(desk.person.caption(), "nlast = 0 (0.880 KB = 5e)");
  EXPECT_FALSE(desk.document().inverted);
}

TEST(Mod, InitAreaChangesNothingAfterANo) {
  AreaDesk desk;
  EXPECT_EQ(desk.run_text("Mod", "Init n=0 area", {"no"}),
            question_report(area_question(line_of_five), "no"));
  EXPECT_EQ(desk.rows(), "3:7");
  EXPECT_TRUE(desk.document().inverted);
}

TEST(Mod, InitAreaTellsThatItStoppedAtTheMemoryLimit) {
  AreaDesk desk;
  desk.document().cph.setkmi_1("N0iniarea_maxcoo", highest_int);
  desk.document().cph.setkmi_1("MaxAllowedMemOccupationInKB", 100);
  const auto reports = desk.run("Mod", "Init n=0 area", {"yes"});
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_EQ(reports[1],
            message_report("\nStop, because more memory used \nthan specified in configuration by "
                           "MaxAllowedMemOccupationInKB"));
  EXPECT_EQ(desk.lmap().count(), 569U);
  EXPECT_EQ(desk.person.caption(), "nlast = 0 (100.144 KB = 569e)");
}

TEST(Mod, InitAreaKeepsWhatABreakFoundWritten) {
  AreaDesk desk;
  desk.document().cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  desk.person.break_at_check(3);
  EXPECT_EQ(desk.run("Mod", "Init n=0 area", {"yes"}).size(), 1U);
  EXPECT_EQ(desk.lmap().count(), 3U);
}

/// Which a data file can bring in by bounds of its own.
TEST(Mod, InitAreaRefusesStepsThatLeadNowhere) {
  AreaDesk desk;
  for (const char* line : {"0 0 9 0", "-3 -9 9 0"}) {
    Tokens rest(line);
    ASSERT_EQ(desk.document().cph.read_configuration_line("N0iniarea_stepdist", rest, true), "");
    EXPECT_EQ(desk.run_text("Mod", "Init n=0 area"), "beep\nerror: N0iniarea_stepdist must be positive");
    EXPECT_EQ(desk.rows(), "3:7");
  }
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

constexpr const char* cross_prompt =
    "Cross product calculation:\n   w[coo] := u[coo]    X    v[coo+offset]\n  coo are the location "
    "coordinates\n"
    "  lattices 0,1,2 contain the components of vector u\n"
    "  lattices 3,4,5 contain the components of vector v\n"
    "  lattices 6,7,8 contain the components of vector w\n   For calculation of the crossproducts of all \n"
    "  coordinates using offset (a,b,c,0,0,0,...))\n  enter the three integers   a,b,c";

struct CrossDesk : Desk {
  CrossDesk() {
    lmap().set(Lk::at(0, 0), 1);
    lmap().set(Lk::at(4, 0, 1), 1);
    lmap().set(Lk::at(6, 0), 1);
  }
  std::string report(const char* answer) const {
    return std::string("dialog: Cross product: ") + cross_prompt + " -> " + answer;
  }
};

TEST(Mod, CrossProductReportsThePointsThatItAdded) {
  CrossDesk desk;
  EXPECT_EQ(desk.run_text("Mod", "Cross Product", {"1,0,0"}),
            desk.report("1,0,0") + "\n" + message_report("1 non-zero\ncross products calculated"));
  EXPECT_EQ(points_text(desk.lmap()), "0 0: 1\n8 0: 1\n4 0 1: 1\n");
  EXPECT_EQ(desk.person.caption(), "nlast = 0 (0.528 KB = 3e)");
  EXPECT_EQ(desk.preset("Mod", "Cross Product"), "0,0,0");
}

TEST(Mod, CrossProductChangesNothingWhenCancelled) {
  CrossDesk desk;
  EXPECT_EQ(desk.run_text("Mod", "Cross Product"), desk.report("cancel"));
  EXPECT_EQ(desk.rows(), "0:1 0:1 0:1");
}

TEST(Mod, CrossProductTellsOfABreak) {
  CrossDesk desk;
  desk.document().cph.setkmi_1("Sums_EntryCountPerDisplay", 1);
  desk.person.break_at_check(1);
  EXPECT_EQ(desk.run("Mod", "Cross Product", {"1,0,0"}).at(1),
            message_report("1 non-zero\ncross products calculated\n\n user break ! "));
}

TEST(Mod, CrossProductReportsAnOverflow) {
  CrossDesk desk;
  const cotyp huge = cotyp::floating(std::numeric_limits<double>::max(), 0.0);
  desk.lmap().set(Lk::at(0, 0), huge);
  desk.lmap().set(Lk::at(4, 0), huge);
  const auto reports = desk.run("Mod", "Cross Product", {"0,0,0"});
  ASSERT_EQ(reports.size(), 3U);
  EXPECT_EQ(reports[2], "error: MathError in Cross Product:\n  floating point overflow");
  EXPECT_EQ(desk.lmap().count(), 3U);
  EXPECT_EQ(desk.person.caption(), "nlast = 0 (0.528 KB = 3e)");
}

}  // namespace
}  // namespace kov
