#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "batch/runner.h"
#include "support/plain_measure.h"
#include "support/string_output.h"
#include "support/temporary_folder.h"

namespace kov {
namespace {

/// Keeps what it is to write.
class KeepingWriter final : public PictureWriter {
 public:
  struct Written {
    Picture picture;
    std::string file;
  };

  std::vector<Written> written;
  /// What the next write fails with.
  std::string failure;

  const TextMeasure& measure() override {
    ++measured;
    return measure_;
  }
  void write(const Picture& picture, const std::filesystem::path& file) override {
    if (!failure.empty()) throw picture_error(failure);
    written.push_back({picture, file.string()});
  }

  int measured = 0;

 private:
  PlainMeasure measure_;
};

/// Runs scripts on a workbench with that writer.
struct DrawSession {
  TemporaryFolder folder;
  KeepingWriter writer;
  std::string output;
  std::vector<std::string> reports;
  int active_page = -1;

  int run(const std::string& text, bool with_writer = true) {
    StringOutput text_output(output);
    Options options;
    options.quiet = true;
    Runner runner(
        options, text_output, [this](const std::string& report) { reports.push_back(report); },
        [] { return false; }, with_writer ? &writer : nullptr);
    const auto status = runner.run(script_lines("s", text));
    active_page = runner.workbench().active_page;
    return static_cast<int>(status);
  }

  /// Three points along k1, in Range 1 of the default table.
  int draw(const std::string& lines) {
    write_text("three.aa1", "e_l 0 0 -1" + zeros(29) + " 1/2\r\ne_l 0 0 0" + zeros(29) + " 1\r\ne_l 0 0 3" +
                                zeros(29) + " 2\r\n");
    return run("File/Open: three.aa1\n" + lines);
  }

  const Picture& picture() const { return writer.written.back().picture; }

 private:
  static std::string zeros(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += " 0";
    return text;
  }
};

std::string note(const Picture& picture, const char* name) {
  const auto found = std::ranges::find(picture.notes, name, &Note::name);
  return found == picture.notes.end() ? "" : found->text;
}

bool shows_text(const Picture& picture, const std::string& text) {
  return std::ranges::count(picture.texts, text, &PictureText::text) > 0;
}

TEST(Draw, WritesThePictureOfThePageAtTheSize) {
  DrawSession session;
  ASSERT_EQ(session.draw("Draw Graph1 a b.png 640x480\nDraw Graph2 c.svg"), 0);
  ASSERT_EQ(session.writer.written.size(), 2U);
  EXPECT_EQ(session.writer.written[0].file, "a b.png");
  EXPECT_EQ(session.writer.written[0].picture.width, 640);
  EXPECT_EQ(session.writer.written[0].picture.height, 480);
  EXPECT_TRUE(shows_text(session.writer.written[0].picture, "k1"));
  EXPECT_EQ(session.writer.written[1].file, "c.svg");
  EXPECT_EQ(session.writer.written[1].picture.width, 1000);
  EXPECT_EQ(session.writer.written[1].picture.height, 700);
  EXPECT_EQ(session.active_page, static_cast<int>(Page::graph2));
  EXPECT_EQ(session.output, "");
}

TEST(Draw, ThePictureSaysWhatItWasDrawnFrom) {
  DrawSession session;
  ASSERT_EQ(session.draw("Set Graph_num_precision 9\nDraw Graph1 a.png"), 0);
  const Picture& picture = session.picture();
  EXPECT_EQ(note(picture, "Title"), "three.aa1 - Graph1");
  EXPECT_EQ(picture.notes.front().name, "Title");
  EXPECT_EQ(note(picture, "Source"), "three.aa1");
  EXPECT_EQ(note(picture, "Range table"),
            "table 0\nRange 1: x=k1 y=n, l=0 n=0 k1=-...+\nRange 2: x=k1 y=n, l=0 n=0 k1=+");
  EXPECT_EQ(note(picture, "Creation Time").size(), std::string("20.11.2026 14:03:59").size());
  const std::string parameters = note(picture, "Parameters");
  EXPECT_NE(parameters.find("Graph_num_precision=9"), std::string::npos);
  EXPECT_NE(parameters.find("Graph1_divmode=0\n"), std::string::npos);
  EXPECT_EQ(parameters.find("Graph2"), std::string::npos);
  EXPECT_EQ(parameters.find("Sums"), std::string::npos);
}

TEST(Draw, Graph2NamesItsOwnParameters) {
  DrawSession session;
  ASSERT_EQ(session.draw("Draw Graph2 a.png"), 0);
  EXPECT_EQ(note(session.picture(), "Title"), "three.aa1 - Graph2");
  const std::string parameters = note(session.picture(), "Parameters");
  for (const char* line : {"Graph2_color_mode=0\n", "Graph2a_ny=0\n", "Graph_Gridlines_x=7\n"}) {
    EXPECT_NE(parameters.find(line), std::string::npos) << line;
  }
  EXPECT_EQ(parameters.find("Graph1"), std::string::npos);
}

TEST(Draw, WithoutADrawingTheLabelIsWritten) {
  DrawSession session;
  ASSERT_EQ(session.draw("Check CB0qre off\nDraw Graph1 a.png"), 0);
  EXPECT_TRUE(shows_text(session.picture(), " cnt=0"));
  EXPECT_EQ(note(session.picture(), "Title"), "three.aa1 - Graph1");
}

TEST(Draw, WithoutAFileThereIsNoSource) {
  DrawSession session;
  ASSERT_EQ(session.run("Draw Graph1 a.png"), 0);
  EXPECT_EQ(note(session.picture(), "Title"), "Graph1");
  EXPECT_EQ(note(session.picture(), "Source"), "");
}

TEST(Draw, AWriterThatFailsFailsTheLine) {
  DrawSession session;
  session.writer.failure = "Cannot save a.png:\nDisk full";
  EXPECT_EQ(session.run("Draw Graph1 a.png"), 1);
  EXPECT_EQ(session.reports, (std::vector<std::string>{"beep", "error: Cannot save a.png:\n  Disk full",
                                                       "failed: s:1: Draw Graph1 a.png"}));
}

TEST(Draw, WithoutAWriterTheLineFails) {
  DrawSession session;
  EXPECT_EQ(session.run("Draw Graph1 a.png", false), 1);
  EXPECT_EQ(session.reports, (std::vector<std::string>{"error: this kovbatch was built without pictures",
                                                       "failed: s:1: Draw Graph1 a.png"}));
  EXPECT_EQ(session.active_page, 0);
}

TEST(Draw, AWriterIsAskedForNothingBeforeALineDraws) {
  DrawSession session;
  ASSERT_EQ(session.draw("Print Graph1 > a.txt"), 0);
  EXPECT_EQ(session.writer.measured, 0);
}

}  // namespace
}  // namespace kov
