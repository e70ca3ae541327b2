#include "datafile/writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "datafile/file_error.h"
#include "file_desk.h"
#include "support/recording_progress.h"

namespace kov {
namespace {

using Calls = std::vector<std::string>;

bool write(const FileDesk& desk, Progress& progress, WithLattices lattices = WithLattices::yes) {
  return write_data_file("walk.aa1", desk.document, lattices, progress);
}

void put_points(Document& document, int count) {
  for (int k = 0; k < count; ++k) document.lmap.set(Lk::at(0, 0, k), cotyp(1));
}

TEST(WriteDataFile, WritesTheTextWithTheFilesNameAndTheDate) {
  FileDesk desk;
  fill_every_part(desk.document);
  EXPECT_TRUE(write(desk, desk.scripted));
  const std::string text = text_of(desk.folder.path() / "walk.aa1");
  const std::string label = " = T.M.J h:m:s\r\n";
  const std::string date = text.substr(5, text.find(label) - 5);
  EXPECT_EQ(text, data_file_text(desk.document, "walk.aa1", WithLattices::yes, date));
  std::string shape = date;
  std::replace_if(
      shape.begin(), shape.end(), [](char c) { return c >= '0' && c <= '9'; }, '9');
  EXPECT_EQ(shape, "99.99.9999 99:99:99");
}

TEST(WriteDataFile, ReadAndWrittenAgainIsTheSameButForTheDate) {
  FileDesk first;
  fill_every_part(first.document);
  const auto text_of_save = [](FileDesk& desk) {
    write(desk, desk.scripted);
    const std::string text = text_of("walk.aa1");
    return text.substr(text.find('\n'));
  };
  const std::string saved = text_of_save(first);
  ASSERT_EQ(first.read("walk.aa1"), ReadOutcome::completed);
  EXPECT_EQ(text_of_save(first), saved);
}

TEST(WriteDataFile, ShowsItsProgressEverySoManyPoints) {
  FileDesk desk;
  put_points(desk.document, 5);
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 2);
  RecordingProgress progress;
  EXPECT_TRUE(write(desk, progress));
  EXPECT_EQ(progress.calls,
            (Calls{"box  Progress 0..5 at 0", "box  Progress 0..5 at 2",
                   "headline lattice point 2 of 5 saved to walk.aa1", "break?", "box  Progress 0..5 at 4",
                   "headline lattice point 4 of 5 saved to walk.aa1", "break?", "hidden"}));
}

TEST(WriteDataFile, WithoutLatticesShowsNone) {
  FileDesk desk;
  put_points(desk.document, 5);
  RecordingProgress progress;
  EXPECT_TRUE(write(desk, progress, WithLattices::no));
  EXPECT_EQ(progress.calls, Calls{});
  EXPECT_TRUE(text_of("walk.aa1").ends_with("\r\n;Lattice not saved\r\n"));
}

TEST(WriteDataFile, MetByBreakLeavesTheOldFile) {
  FileDesk desk;
  put_points(desk.document, 5);
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", 2);
  write_text("walk.aa1", "old");
  RecordingProgress progress;
  progress.break_at = 2;
  EXPECT_FALSE(write(desk, progress));
  EXPECT_EQ(text_of("walk.aa1"), "old");
  EXPECT_EQ(desk.folder.names(), std::vector<std::string>{"walk.aa1"});
  EXPECT_FALSE(progress.is_open());
}

TEST(WriteDataFile, LooksForBreakAlsoWhenItShowsLittle) {
  FileDesk desk;
  put_points(desk.document, 5000);
  desk.document.cph.setkmi_1("File_IO_PointCountPerDisplay", highest_int);
  RecordingProgress progress;
  progress.break_at = 1;
  EXPECT_FALSE(write(desk, progress));
}

TEST(WriteDataFile, ALargeFileIsTheTextToo) {
  FileDesk desk;
  for (int k = 0; k < 150'000; ++k)
    desk.document.lmap.set(Lk::at(0, k / 50'000, k), cotyp(1 + k, 7, k % 3, 1));
  EXPECT_TRUE(write(desk, desk.scripted));
  const std::string text = text_of("walk.aa1");
  EXPECT_GT(text.size(), std::size_t{10} << 20);
  const std::string date = text.substr(5, 19);
  EXPECT_TRUE(text == data_file_text(desk.document, "walk.aa1", WithLattices::yes, date));
}

TEST(WriteDataFile, ReportsAFolderThatIsNotThere) {
  FileDesk desk;
  EXPECT_THROW(write_data_file("none/walk.aa1", desk.document, WithLattices::yes, desk.scripted), file_error);
}

}  // namespace
}  // namespace kov
