#include "datafile/file_layout.h"

#include <gtest/gtest.h>

#include <locale>
#include <string>

#include "file_desk.h"

namespace kov {
namespace {

const std::string zeros28 = repeated("0", 28);

/// A document whose file is short enough to be read: one parameter, and something in every block.
struct SmallDocument : FileDesk {
  SmallDocument() {
    document.cph.restore({{"Alpha", {1, -2, 3, "", true}},
                          {"File_IO_PointCountPerDisplay", {1000, 1, highest_int, "", false}},
                          {"Algadd_del_p0_entries", {0, 0, 1, "", true}}});
    AlgaddEntry entry;
    entry.p = cotyp(1, 2, 0, 1);
    entry.offset = Lk::at(0, 1, -1);
    document.algadd.set_entry(0, 1, entry);
    document.ranges.table(3).icoo_along_x_in_g = {2, 3};
    document.ranges.table(3).range[0].max = Lk::at(4, 5, 6);
    document.slice.set_xdim(2);
    document.slice.set_offset(Lk::at(9, 8, 7));
    document.curve_states[0] = 2;
    document.comment = "first\r\n\r\nlast\r\n";
    document.lmap.set(Lk::at(0, 0), cotyp(1));
    document.lmap.set(Lk::at(-1, 2, 3), cotyp(1, 2, 3, 4));
  }
};

std::string with_line_ends(std::string text) {
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) text.insert(at, 1, '\r');
  return text;
}

const std::string start_of_small_file =
    "e_dt 20.11.2026 14:03:59 = T.M.J h:m:s\n"
    ";this file = small.aa1\n"
    "\n"
    ";lattice_point_count sizeof_entry MaxDimCount :\n"
    "e_lpd 2 176 32\n"
    "e_xdim_ydim 2 0\n"
    "e_aa_imm_p 0 255\n"
    "\n"
    "e_g2at 2 " +
    repeated("0", 98) +
    " \n"
    "\n"
    ";the following lines contain the comment (Length=13)\n"
    "\"first\n"
    "\"\n"
    "\"last\n"
    "\n"
    "\n"
    ";the following lines contain several program parameters\n"
    ";in the order: keyword i min max ucfg\n"
    "Algadd_del_p0_entries 0 0 1 1\n"
    "Alpha 1 -2 3 1\n"
    "File_IO_PointCountPerDisplay 1000 1 2147483647 0\n"
    "\n"
    ";the following lines contain the first 2 entries of Algadd[0]\n"
    ";in the order  e_aa 0 i_entry p ldest l ...\n"
    "e_aa 0 0 0 0 0 1 0 0 0 " +
    zeros28.substr(2) +
    "\n"
    "e_aa 0 1 1/2 0 0 1 -1 0 0 " +
    zeros28.substr(2) +
    "\n"
    "\n"
    "e_lkoffset 9 8 7 0 " +
    zeros28 +
    " \n"
    "\n"
    ";Sums1: Range Table 3:\n"
    "e_ix1g_ix2g_iy1g2_iy2g2 3 2 3 0 0\n"
    "e_sums1_range1min 3 0 0 -2147483648 0 " +
    zeros28 +
    " \n"
    "e_sums1_range1max 3 4 5 6 0 " +
    zeros28 +
    " \n"
    "e_sums1_range2min 3 0 0 2147483647 0 " +
    zeros28 +
    " \n"
    "e_sums1_range2max 3 0 0 2147483647 0 " +
    zeros28 +
    " \n"
    "\n";

const std::string points_of_small_file =
    "\n"
    ";the following 2 lines contain all non-zero quantities of the lattices\n"
    ";in the table order: l, n=coo[0], coo[1] ... coo[30] quantity\n"
    "e_l 0 0 0 0 " +
    zeros28 +
    " 1\n"
    "e_l -1 2 3 0 " +
    zeros28 + " 1/2+3/4i\n";

std::string small_text(const SmallDocument& small, WithLattices lattices = WithLattices::yes) {
  return data_file_text(small.document, "small.aa1", lattices, "20.11.2026 14:03:59");
}

TEST(FileLayout, IsThisByteForByte) {
  EXPECT_EQ(small_text(SmallDocument()), with_line_ends(start_of_small_file + points_of_small_file));
}

TEST(FileLayout, OfAnEmptyStoreEndsInARemark) {
  SmallDocument small;
  small.document.lmap.clear();
  std::string expected = start_of_small_file + "; Lattices are empty. \n";
  expected.replace(expected.find("e_lpd 2"), 7, "e_lpd 0");
  EXPECT_EQ(small_text(small), with_line_ends(expected));
}

TEST(FileLayout, WithoutLatticesAnnouncesNoPointAndSaysSo) {
  SmallDocument small;
  std::string expected = start_of_small_file + ";Lattice not saved\n";
  expected.replace(expected.find("e_lpd 2"), 7, "e_lpd 0");
  EXPECT_EQ(small_text(small, WithLattices::no), with_line_ends(expected));
  small.document.lmap.clear();
  EXPECT_EQ(small_text(small, WithLattices::no), with_line_ends(expected));
}

TEST(FileLayout, LeavesEmptyEntriesOutWhenTheyAreDeletedAnyhow) {
  SmallDocument small;
  small.document.cph.setkmi_1("Algadd_del_p0_entries", 1);
  const std::string text = small_text(small);
  EXPECT_NE(text.find(with_line_ends("\n;the following 1 lines contain all nonempty entries of Algadd[0]\n"
                                     ";in the order  e_aa 0 i_entry p ldest l ...\n"
                                     "e_aa 0 1 1/2 ")),
            std::string::npos);
  EXPECT_EQ(text.find("e_aa 0 0 "), std::string::npos);
}

TEST(FileLayout, WithoutACommentHasNoCommentBlock) {
  SmallDocument small;
  small.document.comment.clear();
  const std::string text = small_text(small);
  EXPECT_EQ(text.find("the comment"), std::string::npos);
  EXPECT_NE(text.find(with_line_ends(" \n\n;the following lines contain several")), std::string::npos);
}

TEST(FileLayout, WritesEveryPieceOfTheComment) {
  struct Row {
    std::string comment;
    std::string lines;
  };
  const std::vector<Row> rows = {
      {"a", "(Length=1)\n\"a\n\n"},           {"a\r\n", "(Length=1)\n\"a\n\n"},
      {"a\r\nb", "(Length=4)\n\"a\n\"b\n\n"}, {"a\r\n\r\n", "(Length=3)\n\"a\n\"\n\n"},
      {"\r\n", "(Length=0)\n\"\n\n"},         {"a\nb\r\n", "(Length=3)\n\"a\n\"b\n\n"},
      {"a\rb", "(Length=3)\n\"a\rb\n\n"},
  };
  for (const Row& row : rows) {
    SmallDocument small;
    small.document.comment = row.comment;
    const std::string expected =
        "\n\n;the following lines contain the comment " + row.lines + "\n;the following";
    EXPECT_NE(small_text(small).find(with_line_ends(expected)), std::string::npos) << row.comment;
  }
}

TEST(FileLayout, KeepsANameWithLineBreaksOnItsLine) {
  const SmallDocument small;
  const std::string text = data_file_text(small.document, "a\r\ne_lpd x", WithLattices::no, "now");
  EXPECT_NE(text.find(";this file = a  e_lpd x\r\n\r\n"), std::string::npos);
}

TEST(FileLayout, KeepsItsNumbersWhenTheLocaleGroupsDigitsAndHasADecimalComma) {
  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  FileDesk desk;
  fill_every_part(desk.document);
  const std::string expected = desk.state();
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  const std::string text = desk.state();
  const ReadOutcome outcome = desk.read_text(text);
  std::locale::global(before);
  EXPECT_EQ(text, expected);
  EXPECT_EQ(outcome, ReadOutcome::completed);
  EXPECT_EQ(desk.state(), expected);
}

TEST(FileLayout, StopsWhenItIsAskedTo) {
  const SmallDocument small;
  TextBuffer out([](std::string_view) {});
  std::vector<std::int64_t> points;
  const auto after_points = [&points](std::int64_t count) {
    points.push_back(count);
    return false;
  };
  EXPECT_FALSE(put_data_file(out, small.document, {"small.aa1", "now", WithLattices::yes}, after_points));
  EXPECT_EQ(points, std::vector<std::int64_t>{static_cast<std::int64_t>(small.document.lmap.count())})
      << "there is one batch only";
}

}  // namespace
}  // namespace kov
