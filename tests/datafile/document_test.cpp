#include "datafile/document.h"

#include <gtest/gtest.h>

#include "file_desk.h"
#include "support/recording_messages.h"

namespace kov {
namespace {

TEST(Document, AfterAResetHasTheDataOfStartUpAndItsOwnParameters) {
  FileDesk desk;
  const std::string at_start = desk.state();
  fill_every_part(desk.document);
  desk.document.inverted = true;
  desk.document.ranges.choose(7);
  desk.document.algadd.set_aanr(3);

  desk.document.reset_data();

  EXPECT_EQ(desk.document.cph.kmi("Slq_ColCount"), 25);
  EXPECT_FALSE(desk.document.inverted);
  EXPECT_EQ(desk.document.ranges.current_index(), 0);
  EXPECT_EQ(desk.document.algadd.aanr(), 0);
  desk.document.cph.InitPrgPar(desk.window);
  EXPECT_EQ(desk.state(), at_start);
}

TEST(Document, AfterAResetShowsTheDefaultAxes) {
  FileDesk desk;
  desk.document.cph.setkmi_1("Slq_xdim_default", 4);
  desk.document.cph.setkmi_1("Slq_xoffset_default", -3);
  desk.document.reset_data();
  EXPECT_EQ(desk.document.slice.xdim(), 4);
  EXPECT_EQ(desk.document.slice.ydim(), 0);
  EXPECT_EQ(desk.document.slice.offset().coo[4], -3);
}

TEST(CurrentFile, IsAtFirstTheDefaultNameAndNotChosen) {
  const CurrentFile file;
  EXPECT_EQ(file.path, "a.aa1");
  EXPECT_FALSE(file.chosen);
}

TEST(CurrentFile, IsNamedWithoutItsFolder) {
  EXPECT_EQ((CurrentFile{"/some/walk.aa1", true}.name()), "walk.aa1");
}

TEST(Document, AppendsACommentLineBehindAnUnfinishedOne) {
  struct Case {
    const char* before;
    const char* line;
    const char* after;
  };
  // clang-format off
  const Case cases[] = {
      {"",           "a", "a\r\n"},
      {"",           "",  "\r\n"},
      {"one\r\n",    "a", "one\r\na\r\n"},
      {"one\r\ntwo", "a", "one\r\ntwo\r\na\r\n"},
      {"one\r\ntwo", "",  "one\r\ntwo\r\n\r\n"},
      {"one\n",      "a", "one\na\r\n"},
  };
  // clang-format on
  RecordingMessages messages;
  for (const Case& c : cases) {
    Document document(messages);
    document.comment = c.before;
    document.append_comment_line(c.line);
    EXPECT_EQ(document.comment, c.after);
  }
}

}  // namespace
}  // namespace kov
