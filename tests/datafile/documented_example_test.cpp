#include <gtest/gtest.h>

#include <string>

#include "file_desk.h"
#include "support/points_text.h"

namespace kov {
namespace {

TEST(DocumentedExample, ReadsWithoutAMessage) {
  FileDesk desk;
  const std::string page = text_of(std::filesystem::path(KOV_SOURCE_DIR) / "docs" / "data_file.md");
  const std::string fence = "```\n";
  const std::size_t begin = page.find(fence);
  ASSERT_NE(begin, std::string::npos);
  const std::size_t end = page.find(fence, begin + fence.size());
  ASSERT_NE(end, std::string::npos);

  EXPECT_EQ(desk.read_text(page.substr(begin + fence.size(), end - begin - fence.size())),
            ReadOutcome::completed);
  EXPECT_EQ(desk.reports, std::vector<std::string>{});
  EXPECT_EQ(desk.document.comment, "A walk on a line, started at the origin.\r\n");
  EXPECT_EQ(desk.document.cph.kmi("Algadd_DefaultStepCount"), 100);
  EXPECT_EQ(desk.document.algadd.used_length(0), 2);
  EXPECT_EQ(desk.document.algadd.entry(0, 1).offset, Lk::at(0, 1, 1));
  EXPECT_EQ(points_text(desk.document.lmap), "0 0: 1\n");
}

}  // namespace
}  // namespace kov
