#include "batch/script_line.h"

#include <gtest/gtest.h>

#include <string>

namespace kov {
namespace {

struct LineCase {
  const char* line;
  ScriptLine parsed;
};

class ParseLine : public testing::TestWithParam<LineCase> {};

TEST_P(ParseLine, GivesItsValue) {
  EXPECT_TRUE(parse_line(GetParam().line) == GetParam().parsed) << GetParam().line;
}

const UnknownLine no_such_line{"no such line"};
const UnknownLine empty_answer{"an empty answer is written \"\""};
const UnknownLine set_form{"expected: Set KEYWORD VALUE"};
const UnknownLine radio_form{"expected: Radio Graph2 INDEX, with INDEX from 0 to 9"};
const UnknownLine check_form{"expected: Check NAME on, or off"};
const UnknownLine break_form{"expected: Break N, with N from 1 on"};
const UnknownLine cell_form{"expected: Cell GRID COLUMN,ROW TEXT"};
const UnknownLine key_form{"expected: Key GRID COLUMN,ROW KEY"};
const UnknownLine click_form{"expected: Click GRID COLUMN,ROW left, or right, or double"};
const UnknownLine print_form{"expected: Print WHAT, or Print WHAT > FILE"};
const UnknownLine draw_form{"expected: Draw Graph1 FILE [WIDTHxHEIGHT], or Graph2"};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Draw, ParseLine, testing::Values(
    LineCase{"Draw Graph1 a.png",                    DrawLine{Page::graph1, "a.png", {}}},
    LineCase{"Draw Graph2 a.svg 1200x900",           DrawLine{Page::graph2, "a.svg", {1200, 900}}},
    LineCase{"Draw  Graph2\ta b.svg   12x9",         DrawLine{Page::graph2, "a b.svg", {12, 9}}},
    LineCase{"Draw Graph1 1200x900",                 DrawLine{Page::graph1, "1200x900", {}}},
    LineCase{"Draw Graph1 a.png 1200",               DrawLine{Page::graph1, "a.png 1200", {}}},
    LineCase{"Draw Graph1 x 99999x1",                DrawLine{Page::graph1, "x 99999x1", {}}},
    LineCase{"Draw Graph1",                          draw_form},
    LineCase{"Draw",                                 draw_form},
    LineCase{"Draw Sums1 a.png",                     draw_form}));

INSTANTIATE_TEST_SUITE_P(Command, ParseLine, testing::Values(
    LineCase{"File/Open",                            CommandLine{"File", "Open", {}}},
    LineCase{"File/Open:",                           CommandLine{"File", "Open", {}}},
    LineCase{"File/Open: ",                          CommandLine{"File", "Open", {}}},
    LineCase{"File/Open: a b.aa1",                   CommandLine{"File", "Open", {"a b.aa1"}}},
    LineCase{"File/Open:a/b:c.aa1",                  CommandLine{"File", "Open", {"a/b:c.aa1"}}},
    LineCase{"Cmd/Choose Part: 1,2,3",               CommandLine{"Cmd", "Choose Part", {"1,2,3"}}},
    LineCase{"File/Save as: x.aa1 | yes",            CommandLine{"File", "Save as", {"x.aa1", "yes"}}},
    LineCase{"A/B:1|2|3",                            CommandLine{"A", "B", {"1", "2", "3"}}},
    LineCase{"A/B: \"\"",                            CommandLine{"A", "B", {""}}},
    LineCase{"A/B: 1 | \"\" | 2",                    CommandLine{"A", "B", {"1", "", "2"}}},
    LineCase{"A/B: \"x\"",                           CommandLine{"A", "B", {"\"x\""}}},
    LineCase{"Cmd/Ch.  last\t b.   0",               CommandLine{"Cmd", "Ch. last b. 0", {}}},
    LineCase{"Sums1/Set full Range (-...+)",         CommandLine{"Sums1", "Set full Range (-...+)", {}}},
    LineCase{"Mod/Init n=0 with 1",                  CommandLine{"Mod", "Init n=0 with 1", {}}},
    LineCase{"Open/File/x",                          CommandLine{"Open", "File/x", {}}},
    LineCase{"A/B: 1 |",                             empty_answer},
    LineCase{"A/B: | 1",                             empty_answer},
    LineCase{"A/B: 1 | | 2",                         empty_answer},
    LineCase{"A/B: |",                               empty_answer},
    LineCase{"Open",                                 no_such_line},
    LineCase{"File: x",                              no_such_line},
    LineCase{"print status",                         no_such_line},
    LineCase{"Printer",                              no_such_line}));

INSTANTIATE_TEST_SUITE_P(Grids, ParseLine, testing::Values(
    LineCase{"Cell Slq 3,2 1/2",                     CellLine{{"Slq", {3, 2}}, "1/2"}},
    LineCase{"Cell  Slq \t 3,2   a  b",              CellLine{{"Slq", {3, 2}}, "  a  b"}},
    LineCase{"Cell Slq 3,2",                         CellLine{{"Slq", {3, 2}}, ""}},
    LineCase{"Cell nonsense -1,99 5",                CellLine{{"nonsense", {-1, 99}}, "5"}},
    LineCase{"Cell",                                 cell_form},
    LineCase{"Cell Slq",                             cell_form},
    LineCase{"Cell Slq 3 2",                         cell_form},
    LineCase{"Cell Slq 3, 2",                        cell_form},
    LineCase{"Cell Slq 3,2,1 5",                     cell_form},
    LineCase{"Cell Slq 3,x 5",                       cell_form},
    LineCase{"Cell Slq 3,99999999999 5",             cell_form},
    LineCase{"Key Slds1 1,3 A",                      KeyLine{{"Slds1", {1, 3}}, "A"}},
    LineCase{"Key  Slds1  1,3  Ctrl+PageDown",       KeyLine{{"Slds1", {1, 3}}, "Ctrl+PageDown"}},
    LineCase{"Key Slq 1,1 :",                        KeyLine{{"Slq", {1, 1}}, ":"}},
    LineCase{"Key Slq 1,1 nonsense",                 KeyLine{{"Slq", {1, 1}}, "nonsense"}},
    LineCase{"Key Slq 1,1",                          key_form},
    LineCase{"Key Slq P",                            key_form},
    LineCase{"Key Slq 1,1 P M",                      key_form},
    LineCase{"Click Slq 1,1 left",                   ClickLine{{"Slq", {1, 1}}, GridClick::left, {}}},
    LineCase{"Click Slq 1,1 double",                 ClickLine{{"Slq", {1, 1}}, GridClick::double_click, {}}},
    LineCase{"Click Sllist 0,1 right: 5",            ClickLine{{"Sllist", {0, 1}}, GridClick::right, {"5"}}},
    LineCase{"Click Sllist 0,1 right : 5 | \"\"",    ClickLine{{"Sllist", {0, 1}}, GridClick::right, {"5", ""}}},
    LineCase{"Click Sllist 0,1 right: 5 |",          empty_answer},
    LineCase{"Click Sllist 0,1 Right",               click_form},
    LineCase{"Click Sllist 0,1",                     click_form},
    LineCase{"Click Sllist right",                   click_form},
    LineCase{"Click Sllist 0,1 right 5",             click_form}));

INSTANTIATE_TEST_SUITE_P(Verbs, ParseLine, testing::Values(
    LineCase{"Set Slq_ColCount 30",                  SetLine{"Slq_ColCount", "30"}},
    LineCase{"Set   Slq_ColCount \t -7",             SetLine{"Slq_ColCount", "-7"}},
    LineCase{"Set Slq_ColCount x",                   SetLine{"Slq_ColCount", "x"}},
    LineCase{"Set Slq_ColCount",                     set_form},
    LineCase{"Set",                                  set_form},
    LineCase{"Set Slq_ColCount 1 2",                 set_form},
    LineCase{"Check CB0qre on",                      CheckLine{"CB0qre", true}},
    LineCase{"Check CB0qre off",                     CheckLine{"CB0qre", false}},
    LineCase{"Check CB0qre",                         check_form},
    LineCase{"Check CB0qre On",                      check_form},
    LineCase{"Check CB0qre on on",                   check_form},
    LineCase{"Radio Graph2 0",                       RadioLine{0}},
    LineCase{"Radio  Graph2 9",                      RadioLine{9}},
    LineCase{"Radio Graph2 10",                      radio_form},
    LineCase{"Radio Graph2 -1",                      radio_form},
    LineCase{"Radio Graph2",                         radio_form},
    LineCase{"Radio Graph2 1 2",                     radio_form},
    LineCase{"Radio Graph2 x",                       radio_form},
    LineCase{"Radio Graph1 1",                       radio_form},
    LineCase{"Comment",                              CommentLine{""}},
    LineCase{"Comment a  b",                         CommentLine{"a  b"}},
    LineCase{"Comment   indented: |",                CommentLine{"  indented: |"}},
    LineCase{"Echo",                                 EchoLine{""}},
    LineCase{"Echo a > b",                           EchoLine{"a > b"}},
    LineCase{"Echo\ttab",                            EchoLine{"tab"}},
    LineCase{"Break 1",                              BreakLine{1}},
    LineCase{"Break  2147483647",                    BreakLine{2147483647}},
    LineCase{"Break",                                break_form},
    LineCase{"Break 0",                              break_form},
    LineCase{"Break -1",                             break_form},
    LineCase{"Break 1 2",                            break_form},
    LineCase{"Print status",                         PrintLine{"status", std::nullopt}},
    LineCase{"Print  label   Sums1",                 PrintLine{"label Sums1", std::nullopt}},
    LineCase{"Print Slsums1 > a b.txt",              PrintLine{"Slsums1", "a b.txt"}},
    LineCase{"Print Slsums1>x",                      PrintLine{"Slsums1", "x"}},
    LineCase{"Print status > a > b",                 PrintLine{"status", "a > b"}},
    LineCase{"Print",                                print_form},
    LineCase{"Print > x",                            print_form},
    LineCase{"Print status >",                       print_form}));
// clang-format on

}  // namespace
}  // namespace kov
