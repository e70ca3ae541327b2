#include "workbench/command.h"

#include <gtest/gtest.h>

#include <new>
#include <set>
#include <string>

#include "datafile/file_error.h"
#include "numbers/errors.h"
#include "workbench/desk.h"

namespace kov {
namespace {

TEST(ItemName, IsTheCaptionWithoutWhatTheProgramAdds) {
  struct Case {
    const char* caption;
    const char* name;
  };
  // clang-format off
  constexpr Case cases[] = {
      {"&Open",                   "Open"},
      {"Read till n=",            "Read till n"},
      {"Change Algadd Nr=",       "Change Algadd Nr"},
      {"Start Algadd ",           "Start Algadd"},
      {"AA:",                     "AA"},
      {"Set full Range  (-...+)", "Set full Range (-...+)"},
      {"Init n=0 with 1_1",       "Init n=0 with 1_1"},
      {"Ch. last b. 0",           "Ch. last b. 0"},
      {"a: = ",                   "a"},
      {"S&ave &as",               "Save as"},
      {"",                        ""},
      {" :=",                     ""},
  };
  // clang-format on
  for (const Case& c : cases) EXPECT_EQ(item_name(c.caption), c.name);
}

struct MenuRow {
  const char* menu;
  const char* item;
  const char* shortcut;
};

// clang-format off
constexpr MenuRow menu_rows[] = {
    {"File", "Open", "Ctrl+O"}, {"File", "Read again", "Ctrl+R"}, {"File", "Read indiv.", "Ctrl+I"},
    {"File", "Read till n", ""}, {"File", "Read new Cfg", ""}, {"File", "Reset Cfg", ""},
    {"File", "Save", "Ctrl+S"}, {"File", "Save as", "Ctrl+Shift+S"}, {"File", "Save Cfg", ""},
    {"File", "Save Cfg quickly", "Ctrl+Shift+C"}, {"File", "Del Cfg File", ""}, {"File", "C. Warnlevel", ""},
    {"File", "Search Comb", "Ctrl+X"}, {"File", "Exit", ""},
    {"Util", "ActPage", "Ctrl+Y"},
    {"Cmd", "Move All", ""}, {"Cmd", "Move Part", ""}, {"Cmd", "Copy Part", ""}, {"Cmd", "Delete All", ""},
    {"Cmd", "Delete Part", ""}, {"Cmd", "Delete all n>0", "Ctrl+D"}, {"Cmd", "Delete all but last", ""},
    {"Cmd", "dto outside Sums1", ""}, {"Cmd", "Del nlast", ""}, {"Cmd", "Del nlast outside S1", ""},
    {"Cmd", "Del smallest of nlast", ""}, {"Cmd", "dto. for xx percent", ""}, {"Cmd", "Ch. last b. 0", ""},
    {"Cmd", "Ch. last a. 0", ""}, {"Cmd", "Choose Last", ""}, {"Cmd", "Choose Part", ""},
    {"Cmd", "Choose First", ""},
    {"Mod", "Init n=0 with 1", ""}, {"Mod", "Init n=0 with 1_1", ""}, {"Mod", "Init n=0 area", "Ctrl+Q"},
    {"Mod", "Init For Test", ""}, {"Mod", "Set Default Offset", ""}, {"Mod", "All to Float", ""},
    {"Mod", "Invert", ""}, {"Mod", "Cross Product", ""},
    {"Alg", "Start Algadd 0", ""}, {"Alg", "Start Algadd 1", ""}, {"Alg", "Start Algadd 2", ""},
    {"Alg", "Change Algadd Nr", ""}, {"Alg", "Start Algadd", ""}, {"Alg", "DelAndDo Algadd Steps", "Ctrl+A"},
    {"Alg", "Del after nfirst and do Algadd", ""}, {"Alg", "Algadd with del", ""},
    {"Alg", "AA del outside S1", ""}, {"Alg", "AA Tracking Mode", ""},
    {"Help", "Info", ""}, {"Help", "State", ""},
    {"Bar", "AA", ""}, {"Bar", "S1", ""}, {"Bar", "C", ""},
    {"Algadd", "CopyTable", ""}, {"Algadd", "EraseTable", ""}, {"Algadd", "MultiplyAll_p", ""},
    {"Algadd", "Mult_all_pabsnot1", ""}, {"Algadd", "MultiplySelected_p", ""}, {"Algadd", "SetSelected_p", ""},
    {"Algadd", "Select_p", ""}, {"Algadd", "ChooseNr", ""}, {"Algadd", "CopyEntry", ""},
    {"Algadd", "EraseEntry", ""}, {"Algadd", "RemoveEntry", ""}, {"Algadd", "RemoveTable", ""},
    {"Algadd", "InsertTable", ""}, {"Algadd", "InsertEntry", ""}, {"Algadd", "RenumberEntries", ""},
    {"Algadd", "RenumberTables", ""}, {"Algadd", "Close", ""},
    {"Sums1", "Set full Range (-...+)", ""}, {"Sums1", "Copy Min to Max", ""}, {"Sums1", "Copy Max to Min", ""},
    {"Sums1", "Copy Lattice Offset to Max", ""}, {"Sums1", "Copy Lattice Offset to Min", ""},
    {"Sums1", "Set Min to 0", ""}, {"Sums1", "Set Max to 0", ""}, {"Sums1", "Exchange Ranges", ""},
    {"Sums1", "Set Table to Default", ""}, {"Sums1", "Change Table Number", ""}, {"Sums1", "Copy Table", ""},
    {"Sums1", "Close", ""},
    {"Graph1", "Label_g1_oplot", ""},
    {"Graph2", "Button_g2a_ny", ""},
};
// clang-format on

TEST(Commands, StandInTheOrderOfTheMenus) {
  const auto all = commands();
  ASSERT_EQ(all.size(), std::size(menu_rows));
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i].menu, menu_rows[i].menu) << i;
    EXPECT_EQ(item_name(all[i].caption), menu_rows[i].item) << i;
    EXPECT_EQ(all[i].shortcut, menu_rows[i].shortcut) << menu_rows[i].item;
  }
}

TEST(Commands, AreFoundByMenuAndItemAlone) {
  std::set<std::string> names;
  for (const Command& command : commands()) {
    const std::string item = item_name(command.caption);
    EXPECT_EQ(find_command(command.menu, item), &command);
    EXPECT_TRUE(names.insert(std::string(command.menu) + "/" + item).second) << item;
    EXPECT_NE(command.run, nullptr);
  }
}

TEST(Commands, AreNotFoundByOtherNames) {
  EXPECT_EQ(find_command("File", "open"), nullptr);
  EXPECT_EQ(find_command("file", "Open"), nullptr);
  EXPECT_EQ(find_command("File", "&Open"), nullptr);
  EXPECT_EQ(find_command("Cmd", "Open"), nullptr);
  EXPECT_EQ(find_command("File", ""), nullptr);
}

TEST(Commands, ShowTheCaptionWithoutMnemonicUnlessItIsLive) {
  const Desk desk;
  EXPECT_EQ(desk.caption("File", "Open"), "Open");
  EXPECT_EQ(desk.caption("Sums1", "Set full Range (-...+)"), "Set full Range  (-...+)");
}

struct EscapeCase {
  const char* name;
  void (*run)(Workbench&, User);
  const char* report;
};

class Escape : public testing::TestWithParam<EscapeCase> {};

TEST_P(Escape, IsShownAndTheStatusLineComesBack) {
  Desk desk;
  desk.person.set_caption("half-way");
  run_command({"Mod", "Some&thing ", "", GetParam().run}, desk.workbench, desk.user());
  EXPECT_EQ(desk.reports, (std::vector<std::string>{"beep", GetParam().report}));
  EXPECT_EQ(desk.person.caption(), " Lattices are empty. ");
  EXPECT_TRUE(desk.person.take_failure());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Command, Escape, testing::Values(
    EscapeCase{"memory",   [](Workbench&, User) { throw std::bad_alloc(); },                 "error: Not enough memory; the command was ended."},
    EscapeCase{"overflow", [](Workbench&, User) { throw floating_overflow("too large"); },   "error: MathError in Something:\n  too large"},
    EscapeCase{"math",     [](Workbench&, User) { throw math_error("invalid"); },            "error: MathError in Something:\n  invalid"},
    EscapeCase{"ratyp",    [](Workbench&, User) { throw ratyp_error(); },                    "error: ratyp error: de=0"},
    EscapeCase{"file",     [](Workbench&, User) { throw file_error("Cannot read x.aa1"); },    "error: Cannot read x.aa1"},
    EscapeCase{"other",    [](Workbench&, User) { throw std::runtime_error("other"); },      "error: other"},
    EscapeCase{"unnamed",  [](Workbench&, User) { throw 7; },                                "error: Unknown error."}),
    [](const auto& escape) { return escape.param.name; });
// clang-format on

TEST(RunCommand, LeavesTheCaptionOfACommandThatEndsWell) {
  Desk desk;
  desk.person.set_caption("as it was");
  run_command({"Mod", "Nothing", "", [](Workbench&, User) {}}, desk.workbench, desk.user());
  EXPECT_TRUE(desk.reports.empty());
  EXPECT_EQ(desk.person.caption(), "as it was");
}

}  // namespace
}  // namespace kov
