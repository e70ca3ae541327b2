#include <gtest/gtest.h>

#include "workbench/desk.h"

namespace kov {
namespace {

constexpr const char* hint =
    "The filename\n   kovcfg.aa1\nis reserved as uniform default configuration.\n\nIf this file exists in "
    "the "
    "current directory,\nconfiguration entries marked by \"u\"\nwill be read automatically\nfrom it after "
    "after "
    "every input of another file\nas uniform default.\n\n";

TEST(Bar, AlgaddNumberSetsTheCurrentTableOnly) {
  Desk desk;
  EXPECT_EQ(desk.caption("Bar", "AA"), "AA:0");
  EXPECT_EQ(desk.run_text("Bar", "AA", {"3"}),
            dialog_report("Algadd Nr.", "To choose Algadd table index\nenter integer i [0<=i<=15]", "3"));
  EXPECT_EQ(desk.algadd().aanr(), 3);
  EXPECT_EQ(desk.document().cph.kmi("Algadd_DefaultTableIndex"), 0);
  EXPECT_EQ(desk.caption("Bar", "AA"), "AA:3");
}

TEST(Bar, RangeTableNumberIsAlsoStored) {
  Desk desk;
  EXPECT_EQ(desk.caption("Bar", "S1"), "S1:0");
  EXPECT_EQ(desk.run_text("Bar", "S1", {"31"}),
            dialog_report("Sums1: Choose Table Nr",
                          "To choose Sums1 (Range) table index\nenter integer i [0<=i<=31]", "31"));
  EXPECT_EQ(desk.document().ranges.current_index(), 31);
  EXPECT_EQ(desk.document().cph.kmi("Sums1_DefaultTableIndex"), 31);
  EXPECT_EQ(desk.caption("Bar", "S1"), "S1:31");
}

TEST(Bar, CTellsWhetherTheUniformConfigurationExists) {
  Desk desk;
  EXPECT_EQ(
      desk.run_text("Bar", "C"),
      message_report(std::string("File for uniform configuration\n(kovcfg.aa1) is not existent. ") + hint));
  write_text("kovcfg.aa1", "");
  EXPECT_EQ(desk.run_text("Bar", "C"),
            message_report(std::string("File for uniform configuration\n(kovcfg.aa1) exists. ") + hint));
}

}  // namespace
}  // namespace kov
