#include "datafile/file_titles.h"

#include <gtest/gtest.h>

#include "file_desk.h"

namespace kov {
namespace {

TEST(FileTitles, NameTheUniformFileWhereItExists) {
  const TemporaryFolder folder;
  EXPECT_EQ(open_title(), "Open File and read it");
  EXPECT_EQ(read_individual_title(), "Read File, use its individual cfg");
  EXPECT_EQ(read_till_title(-3), "Read all but lattices only till n=-3");
  EXPECT_EQ(read_configuration_title(), "Read uniform configuration only");

  write_text("kovcfg.aa1", "");
  EXPECT_EQ(open_title(), "Open File and read it (uniform config from kovcfg.aa1)");
  EXPECT_EQ(read_individual_title(), "Read File, use its individual cfg");
  EXPECT_EQ(read_till_title(7), "Read all but lattices only till n=7 (uniform config from kovcfg.aa1)");
  EXPECT_EQ(read_configuration_title(), "Read uniform configuration only, ignore kovcfg.aa1");
}

}  // namespace
}  // namespace kov
