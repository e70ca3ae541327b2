#include "datafile/line_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "file_desk.h"
#include "support/points_text.h"

namespace kov {
namespace {

struct LineCase {
  std::string line;
  std::string message;
};

const std::string zeros31 = repeated("0", 31);
const std::string zeros32 = repeated("0", 32);
const std::string zeros99 = repeated("0", 99);

// clang-format off
const std::vector<LineCase> refused_lines = {
    {"e_lpd",                                   "e_lpd: lsiz_of_infile is no int"},
    {"e_lpd x 176 32",                          "e_lpd: lsiz_of_infile is no int"},
    {"e_lpd 2147483648 176 32",                 "e_lpd: lsiz_of_infile is no int"},
    {"e_lpd 5",                                 "e_lpd: lpsiz is no int"},
    {"e_lpd 5 1.5 32",                          "e_lpd: lpsiz is no int"},
    {"e_lpd 5 176",                             "e_lpd: mdim is no int"},
    {"e_lpd 5 176 32x",                         "e_lpd: mdim is no int"},
    {"e_lpd 5 176 31",                          "e_lpd mdim = 31 != 32 = MaxDimCount"},
    {"e_lpd 5 176 32 1",                        "e_lpd: end of line expected"},
    {"e_xdim_ydim",                             "e_xdim_ydim: xdim is no int"},
    {"e_xdim_ydim -1 0",                        "e_xdim_ydim: xdim is no int"},
    {"e_xdim_ydim 32 0",                        "e_xdim_ydim: xdim is no int"},
    {"e_xdim_ydim 2",                           "e_xdim_ydim: ydim is no int"},
    {"e_xdim_ydim 2 y",                         "e_xdim_ydim: ydim is no int"},
    {"e_xdim_ydim 2 -1",                        "e_xdim_ydim: ydim is no int"},
    {"e_xdim_ydim 2 32",                        "e_xdim_ydim: ydim is no int"},
    {"e_xdim_ydim 2 2",                         "e_xdim_ydim: ydim is no int"},
    {"e_xdim_ydim 2 3 4",                       "e_xdim_ydim: end of line expected"},
    {"e_aa_imm_p",                              "entry_aa_imm_selected_p: min no int"},
    {"e_aa_imm_p -1 5",                         "entry_aa_imm_selected_p: min no int"},
    {"e_aa_imm_p 256 5",                        "entry_aa_imm_selected_p: min no int"},
    {"e_aa_imm_p 7",                            "entry_aa_imm_selected_p: max no int"},
    {"e_aa_imm_p 7 256",                        "entry_aa_imm_selected_p: max no int"},
    {"e_aa_imm_p 7 -1",                         "entry_aa_imm_selected_p: max no int"},
    {"e_aa_imm_p 7 6",                          "entry_aa_imm_selected_p: max no int"},
    {"e_aa_imm_p 7 8 9",                        "entry_aa_imm_selected_p: end of line expected"},
    {"e_g2at",                                  "e_g2at Error in iym[0]"},
    {"e_g2at 1 2 3",                            "e_g2at Error in iym[2]"},
    {"e_g2at 1 -1",                             "e_g2at Error in iym[1]"},
    {"e_g2at " + repeated("1", 98),             "e_g2at Error in iym[98]"},
    {"e_g2at " + zeros99 + " 0",                "e_g2at: end of line expected"},
    {"e_aa",                                    "entry_algadd: aanr_read no int"},
    {"e_aa t 0 1 0 " + zeros32,                 "entry_algadd: aanr_read no int"},
    {"e_aa 16 0 1 0 " + zeros32,                "entry_algadd: aanr_read=16 > Algadd_TableCount=16"},
    {"e_aa -1 0 1 0 " + zeros32,                "entry_algadd: aanr_read=-1 > Algadd_TableCount=16"},
    {"e_aa 3",                                  "entry_algadd: i_entry no int"},
    {"e_aa 3 256 1 0 " + zeros32,               "entry_algadd: i_entry_read=256 > Algadd_EntryCount=256"},
    {"e_aa 3 -5 1 0 " + zeros32,                "entry_algadd: i_entry_read=-5 > Algadd_EntryCount=256"},
    {"e_aa 3 4",                                "entry_algadd: p no cotyp"},
    {"e_aa 3 4 1/0 0 " + zeros32,               "entry_algadd: p no cotyp"},
    {"e_aa 3 4 inf 0 " + zeros32,               "entry_algadd: p no cotyp"},
    {"e_aa 3 4 1/2",                            "entry_algadd: ldest no int"},
    {"e_aa 3 4 1/2 0",                          "entry_algadd: Error in coo[sl_icoo(0)]"},
    {"e_aa 3 4 1/2 0 0 1 x",                    "entry_algadd: Error in coo[sl_icoo(2)]"},
    {"e_aa 3 4 1/2 0 " + zeros31,               "entry_algadd: Error in coo[sl_icoo(31)]"},
    {"e_aa 3 4 1/2 0 " + zeros32 + " 0",        "entry_algadd: end of line expected"},
    {"e_lkoffset",                              "e_lkoffset Error in coo[sl_icoo(0)]"},
    {"e_lkoffset " + zeros31,                   "e_lkoffset Error in coo[sl_icoo(31)]"},
    {"e_lkoffset 1 2 3 4294967296",             "e_lkoffset Error in coo[sl_icoo(3)]"},
    {"e_lkoffset " + zeros32 + " 0",            "e_lkoffset: end of line expected"},
    {"e_ix1g_ix2g_iy1g2_iy2g2",                 "e_ix1g_ix2g_iy1g2_iy2g2: ita_loc is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 32 1 1 0 0",      "e_ix1g_ix2g_iy1g2_iy2g2: ita_loc out of range"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 -1 1 1 0 0",      "e_ix1g_ix2g_iy1g2_iy2g2: ita_loc out of range"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 x 1 0 0",       "e_ix1g_ix2g_iy1g2_iy2g2: ta[ita_loc].icoo_along_x_in_g[0] is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 32 1 0 0",      "e_ix1g_ix2g_iy1g2_iy2g2: ta[ita_loc].icoo_along_x_in_g[0] is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 2 x 0 0",       "e_ix1g_ix2g_iy1g2_iy2g2: ta[ita_loc].icoo_along_x_in_g[1] is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 2 3 -1 0",      "e_ix1g_ix2g_iy1g2_iy2g2: ta[ita_loc].icoo_along_y_in_g2[0] is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 2 3 4",         "e_ix1g_ix2g_iy1g2_iy2g2: ta[ita_loc].icoo_along_y_in_g2[1] is no int"},
    {"e_ix1g_ix2g_iy1g2_iy2g2 0 2 3 4 5 6",     "e_ix1g_ix2g_iy1g2_iy2g2: end of line expected"},
    {"e_sums1_range1min",                       "e_sums1_range1min: ita_loc is no int"},
    {"e_sums1_range1min 32 " + zeros32,         "e_sums1_range1min: ita_loc out of range"},
    {"e_sums1_range1max -1 " + zeros32,         "e_sums1_range1max: ita_loc out of range"},
    {"e_sums1_range1max 0 1 2 -",               "e_sums1_range1max Error in coo[sl_icoo(2)]"},
    {"e_sums1_range2min 0 " + zeros31,          "e_sums1_range2min Error in coo[sl_icoo(31)]"},
    {"e_sums1_range2max 31 " + zeros32 + " x",  "e_sums1_range2max: end of line expected"},
    {"e_sums1_range2max x " + zeros32,          "e_sums1_range2max: ita_loc is no int"},
    {"e_l",                                     "entry_lattice: sscanf = 0 instead of 33"},
    {"e_l 1 2 x",                               "entry_lattice: sscanf = 2 instead of 33"},
    {"e_l 10000000000 " + zeros31 + " 1",       "entry_lattice: sscanf = 0 instead of 33"},
    {"e_l " + zeros32,                          "entry_lattice: sscanf = 32 instead of 33"},
    {"e_l " + zeros32 + " one",                 "entry_lattice: Error in cotyp quantity"},
    {"e_l " + zeros32 + " 1/0",                 "entry_lattice: Error in cotyp quantity"},
    {"e_l " + zeros32 + " nan",                 "entry_lattice: Error in cotyp quantity"},
    {"e_l " + zeros32 + " 1 i",                 "entry_lattice: end of line expected"},
    {"e_l " + zeros32 + " 0",                   "entry_lattice: NullQuantity input is redundant"},
    {"e_l " + zeros32 + " 0.0",                 "entry_lattice: NullQuantity input is redundant"},
    {point_line(1, 2, 3, "5"),                  "entry_lattice: coordinate already occupied"},
    {point_line(1, 2, 3, "0"),                  "entry_lattice: NullQuantity input is redundant"},
    {point_line(1, 2, 3, "x"),                  "entry_lattice: Error in cotyp quantity"},
    {"Slq_RowCount x 2 2000 1",                 "Slq_RowCount: i is no int"},
    {"Slq_RowCount 1 2 2000 1",                 "Slq_RowCount i = 1 < 2 = min"},
    {"Slq_RowCount 9 2 3 1",                    "Slq_RowCount i = 9 > 3 = max"},
};

const std::vector<std::string> ignored_lines = {
    "", ";", "; a remark", ";e_lpd x", " ", "\t ", "e_dt", "e_dt 20.11.2026 14:03:59 = T.M.J h:m:s", "unknown 1 2 3",
    "e_L 1", "E_LPD x", " ;x", "e_lx 1 2 3", std::string("e_lpd\0 x", 8), std::string("\0", 1),
};
// clang-format on

TEST(LineReader, RefusesALineWithItsMessageAndChangesNothing) {
  FileDesk desk;
  desk.document.lmap.set(Lk::at(1, 2, 3), cotyp(1));
  const std::string before = desk.state();
  for (const LineCase& row : refused_lines) {
    LineReader reader(desk.document, every_step, false);
    LineResult result = LineResult::point;
    EXPECT_EQ(reader.read_line(row.line, result), row.message) << row.line;
    EXPECT_EQ(result, LineResult::other) << row.line;
    EXPECT_EQ(desk.state(), before) << row.line;
    EXPECT_EQ(reader.announced_points(), 0) << row.line;
  }
}

TEST(LineReader, PassesOverRemarksDatesAndUnknownKeywords) {
  FileDesk desk;
  const std::string before = desk.state();
  LineReader reader(desk.document, every_step, false);
  for (const std::string& line : ignored_lines) {
    LineResult result = LineResult::point;
    EXPECT_EQ(reader.read_line(line, result), "") << line;
    EXPECT_EQ(result, LineResult::other) << line;
  }
  EXPECT_EQ(desk.state(), before);
}

class AcceptedLine : public ::testing::Test {
 protected:
  void take(std::string_view line) {
    LineResult result = LineResult::stop;
    ASSERT_EQ(reader.read_line(line, result), "") << line;
    ASSERT_EQ(result, LineResult::other) << line;
  }

  FileDesk desk;
  Document& document = desk.document;
  LineReader reader{document, every_step, false};
};

TEST_F(AcceptedLine, OfAnAnnouncementGivesTheNumberOfPoints) {
  take("e_lpd 123 999 32 ");
  EXPECT_EQ(reader.announced_points(), 123);
}

TEST_F(AcceptedLine, OfAxesMaySwapThem) {
  take("e_xdim_ydim 0 1");
  EXPECT_EQ(document.slice.xdim(), 0);
  EXPECT_EQ(document.slice.ydim(), 1);
  take("\t e_xdim_ydim\t31   30");
  EXPECT_EQ(document.slice.xdim(), 31);
  EXPECT_EQ(document.slice.ydim(), 30);
}

TEST_F(AcceptedLine, OfASelectionMayHoldOneEntry) {
  take("e_aa_imm_p 254 254");
  EXPECT_EQ(document.algadd.selected_first(), 254);
  EXPECT_EQ(document.algadd.selected_last(), 254);
}

TEST_F(AcceptedLine, OfCurveStatesSetsAll) {
  take("e_g2at 1 2 " + repeated("0", 96) + " 2 ");
  EXPECT_EQ(document.curve_states[0], 1);
  EXPECT_EQ(document.curve_states[1], 2);
  EXPECT_EQ(document.curve_states[2], 0);
  EXPECT_EQ(document.curve_states[98], 2);
}

TEST_F(AcceptedLine, OfAnEntrySetsAllItsFields) {
  take("e_aa 15 255 -2-1/3i -7 4 1 2 3 " + repeated("0", 28));
  const AlgaddEntry& entry = document.algadd.entry(15, 255);
  EXPECT_EQ(to_text(entry.p), "-2-1/3i");
  EXPECT_EQ(entry.ldest, -7);
  EXPECT_EQ(entry.source_l(), 4);
  EXPECT_EQ(entry.offset.n(), 1);
  EXPECT_EQ(entry.offset.coo[1], 2);
  EXPECT_EQ(entry.offset.coo[2], 3);
}

TEST_F(AcceptedLine, OfTheOffsetSetsIt) {
  take("e_lkoffset 9 -8 7 " + repeated("0", 28) + " 6");
  EXPECT_EQ(document.slice.offset().l(), 9);
  EXPECT_EQ(document.slice.offset().n(), -8);
  EXPECT_EQ(document.slice.offset().coo[1], 7);
  EXPECT_EQ(document.slice.offset().coo[30], 6);
}

TEST_F(AcceptedLine, OfARangeTableSetsItsAxesAndEachBound) {
  take("e_ix1g_ix2g_iy1g2_iy2g2 31 5 6 7 31");
  take("e_sums1_range2max 31 4 " + zeros31);
  take("e_sums1_range1min 31 1 " + zeros31);
  take("e_sums1_range2min 31 3 " + zeros31);
  take("e_sums1_range1max 31 2 2147483647 " + repeated("-2147483648", 30));
  const RangeTable& table = document.ranges.table(31);
  EXPECT_EQ(table.icoo_along_x_in_g, (std::array<std::int32_t, 2>{5, 6}));
  EXPECT_EQ(table.icoo_along_y_in_g2, (std::array<std::int32_t, 2>{7, 31}));
  EXPECT_EQ(table.range[0].min, Lk::at(1, 0));
  EXPECT_EQ(table.range[0].max.l(), 2);
  EXPECT_EQ(table.range[0].max.n(), highest_int);
  EXPECT_EQ(table.range[0].max.coo[30], lowest_int);
  EXPECT_EQ(table.range[1].min, Lk::at(3, 0));
  EXPECT_EQ(table.range[1].max, Lk::at(4, 0));
}

TEST_F(AcceptedLine, OfTheCommentKeepsEveryCharacterBehindTheQuote) {
  take("\"one \"two\"  ");
  take("\"");
  take("\";e_l");
  EXPECT_EQ(document.comment, "one \"two\"  \r\n\r\n;e_l\r\n");
}

TEST_F(AcceptedLine, OfTheConfigurationMayWidenItsOwnBounds) {
  take("Graph2a_ny 150 -200 200 0 and more");
  EXPECT_EQ(document.cph.kmi("Graph2a_ny"), 150);
}

TEST(LineReader, StoresPointsUpToTheLastStepAndStopsBehindIt) {
  FileDesk desk;
  LineReader reader(desk.document, 3, false);
  LineResult result = LineResult::other;
  EXPECT_EQ(reader.read_line(point_line(0, 3, 5, "1/2+3/4i"), result), "");
  EXPECT_EQ(result, LineResult::point);
  EXPECT_EQ(reader.read_line(point_line(0, 4, 5, "1"), result), "");
  EXPECT_EQ(result, LineResult::stop);
  EXPECT_EQ(reader.read_line(point_line(0, -1, 0, "2"), result), "");
  EXPECT_EQ(result, LineResult::point);
  reader.finish();
  EXPECT_EQ(points_text(desk.document.lmap), "0 -1: 2\n0 3 5: 1/2 3/4i\n");
}

TEST(LineReader, OfTheConfigurationAloneLeavesDataUntouchedAndStopsAtAPoint) {
  FileDesk desk;
  fill_every_part(desk.document);
  const std::string before = desk.state();
  LineReader reader(desk.document, configuration_only, false);
  for (const LineCase& row : refused_lines) {
    if (row.line.starts_with("e_l ") || row.line == "e_l" || row.line.starts_with("Slq")) continue;
    LineResult result = LineResult::point;
    EXPECT_EQ(reader.read_line(row.line, result), "") << row.line;
    EXPECT_EQ(result, LineResult::other) << row.line;
  }
  LineResult result = LineResult::other;
  EXPECT_EQ(reader.read_line("\"comment", result), "");
  EXPECT_EQ(reader.read_line("e_xdim_ydim 3 4", result), "");
  EXPECT_EQ(reader.read_line("e_l x", result), "");
  EXPECT_EQ(result, LineResult::stop);
  EXPECT_EQ(desk.state(), before);
}

TEST(LineReader, OfTheConfigurationAloneTakesEveryEntryUntilAFileWasChosen) {
  for (const bool file_chosen : {false, true}) {
    FileDesk desk;
    LineReader reader(desk.document, configuration_only, file_chosen);
    LineResult result = LineResult::other;
    EXPECT_EQ(reader.read_line("Slq_ColCount 30 2 1000 1", result), "");
    EXPECT_EQ(reader.read_line("Graph2a_ny 5 -99 99 0", result), "");
    EXPECT_EQ(desk.document.cph.kmi("Slq_ColCount"), 30);
    EXPECT_EQ(desk.document.cph.kmi("Graph2a_ny"), file_chosen ? 0 : 5);
    EXPECT_EQ(reader.read_line("Slq_RowCount x", result), "Slq_RowCount: i is no int");
  }
}

}  // namespace
}  // namespace kov
