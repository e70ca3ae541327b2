// Parts of the window that need no window.
#include <gtest/gtest.h>

#include "app/real_memory.h"
#include "app/status_panel.h"
#include "app/window_place.h"
#include "datafile/qt/comment_text.h"

namespace kov {
namespace {

using std::chrono::milliseconds;

TEST(StatusTime, IsMinutesAndSeconds) {
  EXPECT_EQ(clock_text(milliseconds(0)), "0:00");
  EXPECT_EQ(clock_text(milliseconds(7999)), "0:07");
  EXPECT_EQ(clock_text(milliseconds(754'000)), "12:34");
  EXPECT_EQ(clock_text(milliseconds(3'599'999)), "59:59");
  EXPECT_EQ(clock_text(milliseconds(3'723'000)), "1:02:03");
}

TEST(StatusTime, RemainingIsLeftOutWhileUnknown) {
  EXPECT_EQ(time_text({milliseconds(5000), std::nullopt}), "0:05 elapsed");
  EXPECT_EQ(time_text({milliseconds(5000), milliseconds(65'000)}), "0:05 elapsed, 1:05 remaining");
}

TEST(RealMemory, IsTheSecondFigureOfStatm) {
  EXPECT_EQ(resident_pages("4711 123 45 6 0 78 0\n"), 123u);
  EXPECT_EQ(resident_pages("4711"), std::nullopt);
  EXPECT_EQ(resident_pages("4711 x"), std::nullopt);
  EXPECT_EQ(resident_pages("4711 -1"), std::nullopt);
  ASSERT_TRUE(real_memory().has_value());
  EXPECT_GT(*real_memory(), 1'000'000u);
}

struct Placement {
  QRect wanted;
  QRect shown;
};

class WindowPlacement : public ::testing::TestWithParam<Placement> {};

TEST_P(WindowPlacement, CanBeSeen) {
  const QList<QRect> screens = {{0, 20, 1400, 930}, {1400, 0, 800, 600}};
  EXPECT_EQ(on_screen(GetParam().wanted, {400, 300}, screens), GetParam().shown);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, WindowPlacement, ::testing::Values(
    Placement{{100, 100, 1000, 700},    {100, 100, 1000, 700}},
    Placement{{0, 0, 1000, 700},        {0, 20, 1000, 700}},
    Placement{{1000, 500, 1000, 700},   {400, 250, 1000, 700}},
    Placement{{-500, -500, 1000, 700},  {0, 20, 1000, 700}},
    Placement{{1500, 100, 600, 400},    {1500, 100, 600, 400}},
    Placement{{2000, 300, 600, 400},    {1600, 200, 600, 400}},
    Placement{{9000, 9000, 600, 400},   {800, 550, 600, 400}},
    Placement{{0, 20, 5000, 5000},      {0, 20, 1400, 930}},
    Placement{{50, 50, 10, -7},         {50, 50, 400, 300}}));
// clang-format on

TEST(WindowPlacement, TheFirstOneIsCentred) {
  EXPECT_EQ(WindowPlace::initial({{0, 0, 1400, 1000}}), QRect(100, 100, 1200, 800));
  EXPECT_EQ(WindowPlace::initial({{0, 0, 1024, 600}}), QRect(0, 0, 1024, 600));
}

TEST(CommentText, LinesEndWithCrLf) {
  EXPECT_EQ(comment_of(""), "");
  EXPECT_EQ(comment_of("a"), "a\r\n");
  EXPECT_EQ(comment_of("a\n\nb"), "a\r\n\r\nb\r\n");
  EXPECT_EQ(editor_text_of(""), "");
  EXPECT_EQ(editor_text_of("a\r\n"), "a");
  EXPECT_EQ(editor_text_of("a\r\n\r\nb\r\n"), "a\n\nb");
}

TEST(CommentText, GoesRound) {
  for (const char* text : {"", "a", "a\n", "\n", "a\n\n", "\na", "\u00e4 \u20ac"}) {
    EXPECT_EQ(editor_text_of(comment_of(text)), QString(text)) << text;
  }
}

TEST(CommentText, BytesThatAreNoUtf8AreLatin1) {
  EXPECT_EQ(encoding_of("\xc3\xa4"), CommentEncoding::utf8);
  for (const char* bytes : {"\xe4", "a\xc3", "\xc3\xa4 \xe4"}) {
    EXPECT_EQ(encoding_of(bytes), CommentEncoding::latin1) << bytes;
  }
  EXPECT_EQ(editor_text_of("gr\xfc\xdf\xa0"
                           "e\r\n"),
            QString("gr\u00fc\u00df\u00a0e"));
}

TEST(CommentText, KeepsItsEncodingWhileItsCharactersFit) {
  EXPECT_EQ(comment_of("\u00fc", CommentEncoding::latin1), "\xfc\r\n");
  EXPECT_EQ(comment_of("\u00fc", CommentEncoding::utf8), "\xc3\xbc\r\n");
  EXPECT_EQ(comment_of("\u00fc\u20ac", CommentEncoding::latin1), "\xc3\xbc\xe2\x82\xac\r\n");
}

}  // namespace
}  // namespace kov
