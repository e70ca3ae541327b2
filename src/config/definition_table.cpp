#include "config/definition_table.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "interact/warning_level.h"
#include "text/integers.h"

namespace kov {

namespace {

struct Row {
  const char* keyword;
  std::int32_t i;
  std::int32_t min;
  std::int32_t max;
  const char* description;
  bool ucfg;
};

constexpr std::int32_t least = lowest_int;
constexpr std::int32_t most = highest_int;

// What only the definition knows.
constexpr std::int32_t of_window = 0;
constexpr const char* composed = "";

// clang-format off
constexpr Row rows[] = {
    {"Slq_ColCount",                   20,        2,         1000,      "number of columns in Slq (contains lattice quantities)", true},
    {"Slq_RowCount",                   50,        2,         2000,      "number of rows of Slq", true},
    {"Slq_DefaultColWidth",            86,        1,         most,      "default width of cells", true},
    {"Algadd_DefaultTableIndex",       0,         0,         15,        "Initial table index in Algadd", false},
    {"Algadd_DefaultStepCount",        1,         1,         most,      "default number of steps of Algadd", false},
    {"Algadd_del_p0_entries",          0,         0,         1,         "automatically delete Algadd entries with zero p  (0=no)", true},
    {"Algadd_mem1_DisplayAfterKB",     1000,      10,        10000,     "KB of memory allocation per headline display during Algadd", true},
    {"MaxAllowedMemOccupationInKB",    200000,    100,       most,      "Max. KB of memory allocation", true},
    {"Algadd_TM_DelSmallestAfterKB",   100000,    100,       most,      "KB mem alloc., which causes Del smallest in AA Tracking Mode", true},
    {"Algadd_TM_BeepOnDelSmallest",    0,         0,         1,         "Beep on every deletion cycle during AA Tracking Mode (0=false)", true},
    {"Algadd_TM_DelAlsoTillRow0",      0,         0,         1,         "Del also till (usual first) row n=0 during AA TM (0=false)", true},
    {"SlAlgadd_DefaultColWidth",       50,        1,         most,      "default width of cells", true},
    {"Slq_xdim_default",               1,         0,         31,        "default x-coordonate in Slq", false},
    {"Slq_ydim_default",               0,         0,         31,        "default y-coordonate in Slq", false},
    {"Slq_xoffset_default",            0,         least,     most,      "default x-offset in Slq", false},
    {"Slq_yoffset_default",            0,         least,     most,      "default y-offset in Slq", false},
    {"File_IO_PointCountPerDisplay",   1000,      1,         most,      "Count of saved or read lattice points per display", true},
    {"File_Save_WarnKB",               5000,      100,       most,      composed, true},
    {"F1_Initial_Active_Page",         0,         0,         of_window, "Index of initial table sheet after file read", false},
    {"Graph_Gridlines_x",              7,         0,         300,       "Approx. number of grid lines along x", true},
    {"Graph_Gridlines_y",              4,         0,         200,       "Approx. number of grid lines along y", true},
    {"Graph_Gridlines_Auto",           1,         0,         1,         "Auto pos. grid lines to round values (0=false)", true},
    {"Graph_num_precision",            4,         1,         17,        "Lettering precision", true},
    {"Graph_BarsEdgesVertical",        1,         0,         1,         "Make bar edges exact vertical (0=false)", true},
    {"Graph_y_border_percent",         2,         0,         30,        "Scaling: y zoom factor in percent", true},
    {"Graph_BeepMsgIfTooLessPixel",    0,         0,         1,         "Graph: Warn, if warnlevel high and too less pixel (0=false)", true},
    {"DelSmallPercent_Default",        30,        0,         100,       "Default perc. of points with small quantities to delete", true},
    {"Graph1_BarDbl_Fill0",            0,         0,         2,         "1:Bars to double width if 2er steps,  2:Fill zero q from left", false},
    {"Graph1_CB0qre_checked",          1,         0,         1,         "Graph1, range 0: initially draw qre (0=false)", false},
    {"Graph1_CB0qim_checked",          0,         0,         1,         "Graph1, range 0: initially draw qim (0=false)", false},
    {"Graph1_CB0qq_checked",           0,         0,         1,         "Graph1, range 0: initially draw qq (0=false)", false},
    {"Graph1_CB0qa_checked",           0,         0,         1,         "Graph1, range 0: initially draw qa (0=false)", false},
    {"Graph1_CB0cntAt_checked",        0,         0,         1,         "Graph1, range 0: initially draw cntAt (0=false)", false},
    {"Graph1_CB1qre_checked",          0,         0,         1,         "Graph1, range 1: initially draw qre (0=false)", false},
    {"Graph1_CB1qim_checked",          0,         0,         1,         "Graph1, range 1: initially draw qim (0=false)", false},
    {"Graph1_CB1qq_checked",           0,         0,         1,         "Graph1, range 1: initially draw qq (0=false)", false},
    {"Graph1_CB1qa_checked",           0,         0,         1,         "Graph1, range 1: initially draw qa (0=false)", false},
    {"Graph1_CB1cntAt_checked",        0,         0,         1,         "Graph1, range 1: initially draw cntAt (0=false)", false},
    {"Graph1_CB_state_saving",         1,         0,         1,         "Graph1: Save also last Checkbox state (0=false)", true},
    {"Graph1_oplot_skip_zeros",        0,         0,         2,         "Skip 0:not   1:if x=0 and y=0   2:if x=0 or y=0", false},
    {"Graph1_oplot_if_2_curves",       0,         0,         1,         "if two curves, draw oplot (with x=y1 y=y2) (0=false)", false},
    {"Graph1_divmode",                 0,         0,         2,         "0:nodiv, 1:q/cnt, 2:v1/v2 with v1/0:=0", false},
    {"Graph1_quick_xscale_r12_common", 0,         0,         1,         "Graph1 scaling: quick common x scale for range 1 and 2 (0=false)", true},
    {"Graph1_OnlyBlackWhite",          0,         0,         1,         "Graph1 only backwhite (e.g. for hardcopy) (0=false)", false},
    {"Graph2_AvoidOverlappingSum",     1,         0,         1,         "Avoid overl. summation also if too less pixel (0=false)", true},
    {"Graph2_BoxDoubleWidth",          0,         0,         1,         "Enlarge Boxes to double width if 2er steps (0=false)", false},
    {"Graph2_color_white_offset",      25,        0,         100,       "brightness: minimal white percentage", true},
    {"Graph2_color_mode",              0,         0,         3,         "0:bw 1:red_to_white 2:green_to_white 3:blue_red_to_white", false},
    {"Graph2_divide_y_by_count",       0,         0,         1,         "divide Graph2 y scale by cnt (0=false)", false},
    {"Graph2_color_distribution",      0,         0,         1,         "0:distributed  1:linear", true},
    {"Graph2_LineCountPerDisplay",     30,        1,         most,      "Count of plotted lines per ProgressBar update", true},
    {"Graph2_RB_re_im_qa_qq_cntAt_12", 0,         0,         9,         "default index for active RadioButton", false},
    {"Graph2_RB_state_saving",         1,         0,         1,         "Graph2: Save also last RadioButton state (0=false)", true},
    {"Graph2a_ny",                     0,         -99,       99,        "Multi 1D graphs with last y_max (ny>0) or y_min (ny<0)", false},
    {"Graph2a_max_dypix_per_plot",     6,         0,         most,      "Max. y-Offset; if nonzero, y-scaling is valid only for plot 1", false},
    {"Graph2a_max_dypix_percent",      50,        0,         90,        "Max. percentage of y-range used for all offsets", false},
    {"Sums_ShowAsFloat",               1,         0,         1,         "Show Sums1 and Sums2 in floating point (0=false)", true},
    {"Sums_lt_precision",              7,         0,         most,      "precision of Sums1 and Sums2 output", true},
    {"Sums_Slsums_DefaultColWidth",    128,       1,         most,      "default width of cells", true},
    {"Sums_EntryCountPerDisplay",      10000,     1,         most,      "count of summed lattice points per display", true},
    {"Sums1_SumUp_at_once",            0,         0,         1,         "sum up at once after change of range (0=false)", true},
    {"Sums1_DefaultTableIndex",        0,         0,         31,        "default range table index", false},
    {"Sums2_n_first",                  0,         least,     most,      "First n for summation in Sums2", false},
    {"Sums2_n_second",                 1,         least,     most,      "Second n for summation in Sums2", false},
    {"Sums2_both_eo",                  0,         0,         1,         "Sums2: force both blockbegins even/odd (0=false)", false},
    {"Graph_EntryCountPerDisplay",     10000,     1,         most,      "Graph: Count of summed lattice points per display", true},
    {"File_in_nelast",                 0,         least + 1, most,      "File menu: For option 'read till n='", true},
    {"Combtest1_ShowSquaredDev",       0,         0,         1,         "Show squared deviations (0=false)", true},
    {"Combtest1_WarnMillions",         100,       0,         most,      "Warn, if more Millions of combinations", true},
    {"Combtest1_ShowOnlyIncDev",       1,         0,         most,      "Show not more than one comb with the same deviation", true},
    {"Combtest1_nscnt",                4,         1,         127,       "Count of nearest sums to show", true},
    {"Obarr0_ldest1",                  0,         least,     most,      "0: no absorbing barrier0 (no Obarr0), else ldest1 for absorbed quantities", false},
    {"Obarr1_ldest2",                  0,         least,     most,      "If Obarr0: ldest2 for absorbing barrier in ldest1", false},
    {"Obarr1_k1",                      0,         least,     most,      "If Obarr0: k1 coordinate of absorbing barrier1", false},
    {"Obarr1_k1_of_add_ldest2",        0,         least,     most,      "If Obarr0: k1 coordinate dest of add into ldest2", false},
    {"Obarr1_multp_ldest2",            0,         least,     most,      "If Obarr0: percent of in barrier1 abs. q. before add to ldest2", false},
    {"N0iniarea_dimcount",             3,         1,         3,         "Init n=0 area: 1=along x, 2=along xy, 3=along xyz", false},
    {"N0iniarea_stepdist",             2,         1,         most,      "Init n=0 area: step distance", false},
    {"N0iniarea_sign_alternation",     0,         0,         4,         "Init n=0 area: sign alternation 0:no, 1:x, 2:xy, 3:xyz, 4:maximal", false},
    {"N0iniarea_square_round",         0,         0,         3,         "Init n=0 area: area borders 0:square 1:round", false},
    {"N0iniarea_maxcoo",               12,        1,         most,      "Init n=0 area: maximal k1,k2,k3 coordinates to be initializated", false},
    {"F1_Screen_Default_Height",       of_window, least,     most,      "screen configuration (pixel values)", true},
    {"F1_Screen_Default_Width",        of_window, least,     most,      "screen configuration (pixel values)", true},
    {"F1_Screen_Default_Top",          of_window, least,     most,      "screen configuration (pixel values)", true},
    {"F1_Screen_Default_Left",         of_window, least,     most,      "screen configuration (pixel values)", true},
};
// clang-format on

MMI& parameter(std::vector<Kpair>& table, std::string_view keyword) {
  return std::find_if(table.begin(), table.end(),
                      [keyword](const Kpair& entry) { return entry.first == keyword; })
      ->second;
}

/// Names the warning level from which on a save of large lattices is asked about.
std::string large_file_warning() {
  return "if wl>=" + int_text(level_of_usual_warnings) + ": Warn before save, if lattices have more KB";
}

}  // namespace

std::vector<Kpair> definition_table(const WindowFacts& window) {
  std::vector<Kpair> table;
  table.reserve(std::size(rows));
  for (const Row& row : rows) {
    table.emplace_back(row.keyword, MMI{row.i, row.min, row.max, row.description, row.ucfg});
  }
  parameter(table, "File_Save_WarnKB").description = large_file_warning();
  parameter(table, "F1_Initial_Active_Page").max = window.page_count - 1;
  parameter(table, "F1_Screen_Default_Height").i = window.height;
  parameter(table, "F1_Screen_Default_Width").i = window.width;
  parameter(table, "F1_Screen_Default_Top").i = window.top;
  parameter(table, "F1_Screen_Default_Left").i = window.left;
  return table;
}

}  // namespace kov
