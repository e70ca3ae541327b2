#include "config/definition_table.h"

#include <gtest/gtest.h>

#include <set>

#include "text/integers.h"

namespace kov {
namespace {

struct Row {
  const char* keyword;
  std::int32_t i;
  std::int32_t min;
  std::int32_t max;
  int uniform;
  const char* description;
};

/// What the definition table has to be where there is no window: 9 pages, 1000 x 700 pixels at the corner.
const std::vector<Row>& expected_rows() {
  // clang-format off
  static const std::vector<Row> rows = {
      {"Slq_ColCount",                   20,     2,           1000,       1, "number of columns in Slq (contains lattice quantities)"},
      {"Slq_RowCount",                   50,     2,           2000,       1, "number of rows of Slq"},
      {"Slq_DefaultColWidth",            86,     1,           2147483647, 1, "default width of cells"},
      {"Algadd_DefaultTableIndex",       0,      0,           15,         0, "Initial table index in Algadd"},
      {"Algadd_DefaultStepCount",        1,      1,           2147483647, 0, "default number of steps of Algadd"},
      {"Algadd_del_p0_entries",          0,      0,           1,          1, "automatically delete Algadd entries with zero p  (0=no)"},
      {"Algadd_mem1_DisplayAfterKB",     1000,   10,          10000,      1, "KB of memory allocation per headline display during Algadd"},
      {"MaxAllowedMemOccupationInKB",    200000, 100,         2147483647, 1, "Max. KB of memory allocation"},
      {"Algadd_TM_DelSmallestAfterKB",   100000, 100,         2147483647, 1, "KB mem alloc., which causes Del smallest in AA Tracking Mode"},
      {"Algadd_TM_BeepOnDelSmallest",    0,      0,           1,          1, "Beep on every deletion cycle during AA Tracking Mode (0=false)"},
      {"Algadd_TM_DelAlsoTillRow0",      0,      0,           1,          1, "Del also till (usual first) row n=0 during AA TM (0=false)"},
      {"SlAlgadd_DefaultColWidth",       50,     1,           2147483647, 1, "default width of cells"},
      {"Slq_xdim_default",               1,      0,           31,         0, "default x-coordonate in Slq"},
      {"Slq_ydim_default",               0,      0,           31,         0, "default y-coordonate in Slq"},
      {"Slq_xoffset_default",            0,      lowest_int,  2147483647, 0, "default x-offset in Slq"},
      {"Slq_yoffset_default",            0,      lowest_int,  2147483647, 0, "default y-offset in Slq"},
      {"File_IO_PointCountPerDisplay",   1000,   1,           2147483647, 1, "Count of saved or read lattice points per display"},
      {"File_Save_WarnKB",               5000,   100,         2147483647, 1, "if wl>=2: Warn before save, if lattices have more KB"},
      {"F1_Initial_Active_Page",         0,      0,           8,          0, "Index of initial table sheet after file read"},
      {"Graph_Gridlines_x",              7,      0,           300,        1, "Approx. number of grid lines along x"},
      {"Graph_Gridlines_y",              4,      0,           200,        1, "Approx. number of grid lines along y"},
      {"Graph_Gridlines_Auto",           1,      0,           1,          1, "Auto pos. grid lines to round values (0=false)"},
      {"Graph_num_precision",            4,      1,           17,         1, "Lettering precision"},
      {"Graph_BarsEdgesVertical",        1,      0,           1,          1, "Make bar edges exact vertical (0=false)"},
      {"Graph_y_border_percent",         2,      0,           30,         1, "Scaling: y zoom factor in percent"},
      {"Graph_BeepMsgIfTooLessPixel",    0,      0,           1,          1, "Graph: Warn, if warnlevel high and too less pixel (0=false)"},
      {"DelSmallPercent_Default",        30,     0,           100,        1, "Default perc. of points with small quantities to delete"},
      {"Graph1_BarDbl_Fill0",            0,      0,           2,          0, "1:Bars to double width if 2er steps,  2:Fill zero q from left"},
      {"Graph1_CB0qre_checked",          1,      0,           1,          0, "Graph1, range 0: initially draw qre (0=false)"},
      {"Graph1_CB0qim_checked",          0,      0,           1,          0, "Graph1, range 0: initially draw qim (0=false)"},
      {"Graph1_CB0qq_checked",           0,      0,           1,          0, "Graph1, range 0: initially draw qq (0=false)"},
      {"Graph1_CB0qa_checked",           0,      0,           1,          0, "Graph1, range 0: initially draw qa (0=false)"},
      {"Graph1_CB0cntAt_checked",        0,      0,           1,          0, "Graph1, range 0: initially draw cntAt (0=false)"},
      {"Graph1_CB1qre_checked",          0,      0,           1,          0, "Graph1, range 1: initially draw qre (0=false)"},
      {"Graph1_CB1qim_checked",          0,      0,           1,          0, "Graph1, range 1: initially draw qim (0=false)"},
      {"Graph1_CB1qq_checked",           0,      0,           1,          0, "Graph1, range 1: initially draw qq (0=false)"},
      {"Graph1_CB1qa_checked",           0,      0,           1,          0, "Graph1, range 1: initially draw qa (0=false)"},
      {"Graph1_CB1cntAt_checked",        0,      0,           1,          0, "Graph1, range 1: initially draw cntAt (0=false)"},
      {"Graph1_CB_state_saving",         1,      0,           1,          1, "Graph1: Save also last Checkbox state (0=false)"},
      {"Graph1_oplot_skip_zeros",        0,      0,           2,          0, "Skip 0:not   1:if x=0 and y=0   2:if x=0 or y=0"},
      {"Graph1_oplot_if_2_curves",       0,      0,           1,          0, "if two curves, draw oplot (with x=y1 y=y2) (0=false)"},
      {"Graph1_divmode",                 0,      0,           2,          0, "0:nodiv, 1:q/cnt, 2:v1/v2 with v1/0:=0"},
      {"Graph1_quick_xscale_r12_common", 0,      0,           1,          1, "Graph1 scaling: quick common x scale for range 1 and 2 (0=false)"},
      {"Graph1_OnlyBlackWhite",          0,      0,           1,          0, "Graph1 only backwhite (e.g. for hardcopy) (0=false)"},
      {"Graph2_AvoidOverlappingSum",     1,      0,           1,          1, "Avoid overl. summation also if too less pixel (0=false)"},
      {"Graph2_BoxDoubleWidth",          0,      0,           1,          0, "Enlarge Boxes to double width if 2er steps (0=false)"},
      {"Graph2_color_white_offset",      25,     0,           100,        1, "brightness: minimal white percentage"},
      {"Graph2_color_mode",              0,      0,           3,          0, "0:bw 1:red_to_white 2:green_to_white 3:blue_red_to_white"},
      {"Graph2_divide_y_by_count",       0,      0,           1,          0, "divide Graph2 y scale by cnt (0=false)"},
      {"Graph2_color_distribution",      0,      0,           1,          1, "0:distributed  1:linear"},
      {"Graph2_LineCountPerDisplay",     30,     1,           2147483647, 1, "Count of plotted lines per ProgressBar update"},
      {"Graph2_RB_re_im_qa_qq_cntAt_12", 0,      0,           9,          0, "default index for active RadioButton"},
      {"Graph2_RB_state_saving",         1,      0,           1,          1, "Graph2: Save also last RadioButton state (0=false)"},
      {"Graph2a_ny",                     0,      -99,         99,         0, "Multi 1D graphs with last y_max (ny>0) or y_min (ny<0)"},
      {"Graph2a_max_dypix_per_plot",     6,      0,           2147483647, 0, "Max. y-Offset; if nonzero, y-scaling is valid only for plot 1"},
      {"Graph2a_max_dypix_percent",      50,     0,           90,         0, "Max. percentage of y-range used for all offsets"},
      {"Sums_ShowAsFloat",               1,      0,           1,          1, "Show Sums1 and Sums2 in floating point (0=false)"},
      {"Sums_lt_precision",              7,      0,           2147483647, 1, "precision of Sums1 and Sums2 output"},
      {"Sums_Slsums_DefaultColWidth",    128,    1,           2147483647, 1, "default width of cells"},
      {"Sums_EntryCountPerDisplay",      10000,  1,           2147483647, 1, "count of summed lattice points per display"},
      {"Sums1_SumUp_at_once",            0,      0,           1,          1, "sum up at once after change of range (0=false)"},
      {"Sums1_DefaultTableIndex",        0,      0,           31,         0, "default range table index"},
      {"Sums2_n_first",                  0,      lowest_int,  2147483647, 0, "First n for summation in Sums2"},
      {"Sums2_n_second",                 1,      lowest_int,  2147483647, 0, "Second n for summation in Sums2"},
      {"Sums2_both_eo",                  0,      0,           1,          0, "Sums2: force both blockbegins even/odd (0=false)"},
      {"Graph_EntryCountPerDisplay",     10000,  1,           2147483647, 1, "Graph: Count of summed lattice points per display"},
      {"File_in_nelast",                 0,      -2147483647, 2147483647, 1, "File menu: For option 'read till n='"},
      {"Combtest1_ShowSquaredDev",       0,      0,           1,          1, "Show squared deviations (0=false)"},
      {"Combtest1_WarnMillions",         100,    0,           2147483647, 1, "Warn, if more Millions of combinations"},
      {"Combtest1_ShowOnlyIncDev",       1,      0,           2147483647, 1, "Show not more than one comb with the same deviation"},
      {"Combtest1_nscnt",                4,      1,           127,        1, "Count of nearest sums to show"},
      {"Obarr0_ldest1",                  0,      lowest_int,  2147483647, 0, "0: no absorbing barrier0 (no Obarr0), else ldest1 for absorbed quantities"},
      {"Obarr1_ldest2",                  0,      lowest_int,  2147483647, 0, "If Obarr0: ldest2 for absorbing barrier in ldest1"},
      {"Obarr1_k1",                      0,      lowest_int,  2147483647, 0, "If Obarr0: k1 coordinate of absorbing barrier1"},
      {"Obarr1_k1_of_add_ldest2",        0,      lowest_int,  2147483647, 0, "If Obarr0: k1 coordinate dest of add into ldest2"},
      {"Obarr1_multp_ldest2",            0,      lowest_int,  2147483647, 0, "If Obarr0: percent of in barrier1 abs. q. before add to ldest2"},
      {"N0iniarea_dimcount",             3,      1,           3,          0, "Init n=0 area: 1=along x, 2=along xy, 3=along xyz"},
      {"N0iniarea_stepdist",             2,      1,           2147483647, 0, "Init n=0 area: step distance"},
      {"N0iniarea_sign_alternation",     0,      0,           4,          0, "Init n=0 area: sign alternation 0:no, 1:x, 2:xy, 3:xyz, 4:maximal"},
      {"N0iniarea_square_round",         0,      0,           3,          0, "Init n=0 area: area borders 0:square 1:round"},
      {"N0iniarea_maxcoo",               12,     1,           2147483647, 0, "Init n=0 area: maximal k1,k2,k3 coordinates to be initializated"},
      {"F1_Screen_Default_Height",       700,    lowest_int,  2147483647, 1, "screen configuration (pixel values)"},
      {"F1_Screen_Default_Width",        1000,   lowest_int,  2147483647, 1, "screen configuration (pixel values)"},
      {"F1_Screen_Default_Top",          0,      lowest_int,  2147483647, 1, "screen configuration (pixel values)"},
      {"F1_Screen_Default_Left",         0,      lowest_int,  2147483647, 1, "screen configuration (pixel values)"},
  };
  // clang-format on
  return rows;
}

TEST(DefinitionTable, HoldsEveryParameterInItsOrder) {
  const auto table = definition_table({});
  ASSERT_EQ(table.size(), 85U);
  ASSERT_EQ(expected_rows().size(), 85U);
  for (std::size_t k = 0; k < table.size(); ++k) {
    const auto& [keyword, parameter] = table[k];
    const Row& row = expected_rows()[k];
    EXPECT_EQ(keyword, row.keyword) << "row " << k + 1;
    EXPECT_EQ(parameter.i, row.i) << keyword;
    EXPECT_EQ(parameter.min, row.min) << keyword;
    EXPECT_EQ(parameter.max, row.max) << keyword;
    EXPECT_EQ(parameter.ucfg, row.uniform == 1) << keyword;
    EXPECT_EQ(parameter.description, row.description) << keyword;
  }
}

TEST(DefinitionTable, TakesTheWindowsPlaceSizeAndPages) {
  const auto table = definition_table({.height = 811, .width = 1234, .top = -5, .left = 17, .page_count = 4});
  const auto value = [&table](std::size_t row) { return table[row - 1].second.i; };
  EXPECT_EQ(value(82), 811);
  EXPECT_EQ(value(83), 1234);
  EXPECT_EQ(value(84), -5);
  EXPECT_EQ(value(85), 17);
  EXPECT_EQ(table[19 - 1].second.max, 3);
}

TEST(DefinitionTable, HoldsDistinctKeywordsAndDefaultsWithinTheirBounds) {
  std::set<std::string> keywords;
  for (const auto& [keyword, parameter] : definition_table({})) {
    EXPECT_TRUE(keywords.insert(keyword).second) << keyword;
    EXPECT_LE(parameter.min, parameter.i) << keyword;
    EXPECT_LE(parameter.i, parameter.max) << keyword;
  }
}

}  // namespace
}  // namespace kov
