#include "datafile/save_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "file_desk.h"

namespace kov {
namespace {

using Reports = std::vector<std::string>;

/// A store just at the limit of 100 KB (568 points), or one point above it.
void put_points(Document& document, bool above) {
  document.cph.setkmi_1("File_Save_WarnKB", 100);
  const int count = above ? 569 : 568;
  for (int k = 0; k < count; ++k) document.lmap.set(Lk::at(0, 0, k), cotyp(1));
}

const std::string memory_question =
    "question: The lattices need 100.144 KB of memory.\n"
    "  Modification of lattice (e.g. choose last)\n"
    "  may be recommendable before saving.\n"
    "  Do you really want to save all data? -> ";

TEST(SaveDataFile, AsksNothingUpToTheLimit) {
  FileDesk desk;
  put_points(desk.document, false);
  EXPECT_TRUE(save_data_file("a.aa1", desk.document, desk.scripted.user()));
  EXPECT_EQ(desk.reports, Reports{});
  EXPECT_NE(text_of("a.aa1").find("e_lpd 568 "), std::string::npos);
}

TEST(SaveDataFile, AsksAboveTheLimitAndSavesOnYes) {
  FileDesk desk;
  put_points(desk.document, true);
  desk.scripted.set_answers({"yes"});
  EXPECT_TRUE(save_data_file("a.aa1", desk.document, desk.scripted.user()));
  EXPECT_EQ(desk.reports, Reports{memory_question + "yes"});
  EXPECT_NE(text_of("a.aa1").find("e_lpd 569 "), std::string::npos);
}

TEST(SaveDataFile, WritesNothingOnNo) {
  FileDesk desk;
  put_points(desk.document, true);
  desk.scripted.set_answers({"no"});
  EXPECT_FALSE(save_data_file("a.aa1", desk.document, desk.scripted.user()));
  EXPECT_EQ(desk.reports, Reports{memory_question + "no"});
  EXPECT_EQ(desk.folder.names(), Reports{});
}

TEST(SaveDataFile, AsksNothingBelowLevelTwo) {
  FileDesk desk;
  put_points(desk.document, true);
  desk.scripted.set_wl(1);
  EXPECT_TRUE(save_data_file("a.aa1", desk.document, desk.scripted.user()));
  EXPECT_EQ(desk.reports, Reports{});
}

}  // namespace
}  // namespace kov
