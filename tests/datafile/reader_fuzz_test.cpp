#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "file_desk.h"

namespace kov {
namespace {

/// A file with something of every kind of line, without the many parameters that nobody mutates.
std::string short_file() {
  FileDesk desk;
  desk.document.cph.restore({{"Slq_ColCount", {25, 2, 1000, "", true}},
                             {"Graph2a_ny", {-7, -99, 99, "", false}},
                             {"Algadd_del_p0_entries", {1, 0, 1, "", true}},
                             {"File_IO_PointCountPerDisplay", {1000, 1, highest_int, "", true}}});
  fill_every_part(desk.document);
  return desk.state();
}

std::string mutated(std::string text, std::mt19937& random) {
  const std::vector<std::string> pieces = {"\n",
                                           "\r\n",
                                           " ",
                                           "-",
                                           "9",
                                           "0",
                                           "/",
                                           "i",
                                           "\"",
                                           ";",
                                           "e_l",
                                           "2147483648",
                                           "99999999999999999999",
                                           "1E400",
                                           "nan",
                                           "\t",
                                           "\xff",
                                           "e_aa 15 255 1 "};
  for (std::size_t changes = 1 + random() % 20; changes > 0 && !text.empty(); --changes) {
    const std::size_t at = random() % text.size();
    switch (random() % 4) {
      case 0:
        text[at] = static_cast<char>(random() % 256);
        break;
      case 1:
        text.erase(at, 1 + random() % 40);
        break;
      case 2:
        text.insert(at, pieces[random() % pieces.size()]);
        break;
      default:
        text.insert(at, text.substr(random() % text.size(), random() % 200));
        break;
    }
  }
  return text;
}

TEST(ReadDataFile, OfMutatedBytesLeavesADocumentThatCanBeSavedAndReadBack) {
  std::mt19937 random(4711);
  const std::string original = short_file();
  FileDesk desk;
  desk.scripted.set_wl(0);
  for (int round = 0; round < 2000; ++round) {
    const std::string text = mutated(original, random);
    ASSERT_EQ(desk.read_text(text), ReadOutcome::completed);
    const std::string saved = desk.state();
    ASSERT_EQ(desk.read_text(saved), ReadOutcome::completed);
    ASSERT_EQ(desk.state(), saved) << "from:\n" << text;
  }
}

TEST(ReadDataFile, OfRandomBytesEnds) {
  std::mt19937 random(815);
  FileDesk desk;
  desk.scripted.set_wl(0);
  for (int round = 0; round < 500; ++round) {
    std::string text(random() % 2000, '\0');
    for (char& c : text) c = static_cast<char>(random() % 256);
    ASSERT_EQ(desk.read_text(text), ReadOutcome::completed);
    ASSERT_TRUE(desk.document.lmap.empty());
  }
}

}  // namespace
}  // namespace kov
