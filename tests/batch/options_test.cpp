#include "batch/options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kov {
namespace {

Options parsed(const std::vector<const char*>& arguments) { return parse_options(arguments); }

Options with(void (*change)(Options&)) {
  Options options;
  change(options);
  return options;
}

struct OptionCase {
  std::vector<const char*> arguments;
  Options options;
};

class ParseOptions : public testing::TestWithParam<OptionCase> {};

TEST_P(ParseOptions, GivesItsValue) { EXPECT_TRUE(parsed(GetParam().arguments) == GetParam().options); }

// clang-format off
INSTANTIATE_TEST_SUITE_P(Batch, ParseOptions, testing::Values(
    OptionCase{{},                              with([](Options& o) { o.scripts = {"-"}; })},
    OptionCase{{"-y"},                          with([](Options& o) { o.yes = true; o.scripts = {"-"}; })},
    OptionCase{{"a.kov"},                       with([](Options& o) { o.scripts = {"a.kov"}; })},
    OptionCase{{"a.kov", "-", "b"},             with([](Options& o) { o.scripts = {"a.kov", "-", "b"}; })},
    OptionCase{{"-c", "Echo a", "-c", "-k"},    with([](Options& o) { o.lines = {"Echo a", "-k"}; })},
    OptionCase{{"-cEcho a"},                    with([](Options& o) { o.lines = {"Echo a"}; })},
    OptionCase{{"--command", "Echo a"},         with([](Options& o) { o.lines = {"Echo a"}; })},
    OptionCase{{"--command=Echo a=b"},          with([](Options& o) { o.lines = {"Echo a=b"}; })},
    OptionCase{{"--command="},                  with([](Options& o) { o.lines = {""}; })},
    OptionCase{{"s", "-c", "x", "t"},           with([](Options& o) { o.lines = {"x"}; o.scripts = {"s", "t"}; })},
    OptionCase{{"--yes", "s"},                  with([](Options& o) { o.yes = true; o.scripts = {"s"}; })},
    OptionCase{{"-k", "s"},                     with([](Options& o) { o.keep_going = true; o.scripts = {"s"}; })},
    OptionCase{{"--keep-going", "s"},           with([](Options& o) { o.keep_going = true; o.scripts = {"s"}; })},
    OptionCase{{"s", "-q"},                     with([](Options& o) { o.quiet = true; o.scripts = {"s"}; })},
    OptionCase{{"--quiet", "s"},                with([](Options& o) { o.quiet = true; o.scripts = {"s"}; })},
    OptionCase{{"--every-caption", "s"},        with([](Options& o) { o.every_caption = true; o.scripts = {"s"}; })},
    OptionCase{{"--trace", "s"},                with([](Options& o) { o.trace = true; o.scripts = {"s"}; })},
    OptionCase{{"-ykqc", "x"},                  with([](Options& o) { o.yes = o.keep_going = o.quiet = true; o.lines = {"x"}; })},
    OptionCase{{"-ycx"},                        with([](Options& o) { o.yes = true; o.lines = {"x"}; })},
    OptionCase{{"--", "-y", "--", "-"},         with([](Options& o) { o.scripts = {"-y", "--", "-"}; })},
    OptionCase{{""},                            with([](Options& o) { o.scripts = {""}; })}));

struct BadOptionCase {
  std::vector<const char*> arguments;
  const char* message;
};

class BadOptions : public testing::TestWithParam<BadOptionCase> {};

INSTANTIATE_TEST_SUITE_P(Batch, BadOptions, testing::Values(
    BadOptionCase{{"-x"},              "unknown option -x"},
    BadOptionCase{{"-yz", "s"},        "unknown option -z"},
    BadOptionCase{{"--nope"},          "unknown option --nope"},
    BadOptionCase{{"--Yes"},           "unknown option --Yes"},
    BadOptionCase{{"-c"},              "option -c needs a line"},
    BadOptionCase{{"s", "--command"},  "option --command needs a line"},
    BadOptionCase{{"--yes=1"},         "option --yes takes no value"}));
// clang-format on

TEST_P(BadOptions, AreRefused) {
  try {
    parsed(GetParam().arguments);
    ADD_FAILURE() << "accepted instead of: " << GetParam().message;
  } catch (const option_error& error) {
    EXPECT_STREQ(error.what(), GetParam().message);
  }
}

TEST(Options, HelpAndVersionWinOverWhatFollows) {
  EXPECT_EQ(parsed({"-h", "--nope"}).mode, Options::Mode::help);
  EXPECT_EQ(parsed({"--help"}).mode, Options::Mode::help);
  EXPECT_EQ(parsed({"-yhx"}).mode, Options::Mode::help);
  EXPECT_EQ(parsed({"-V", "-h"}).mode, Options::Mode::version);
  EXPECT_EQ(parsed({"s", "--version"}).mode, Options::Mode::version);
  EXPECT_THROW(parsed({"--nope", "-h"}), option_error);
}

TEST(Options, HelpNamesEveryOption) {
  const std::string help = help_text();
  for (const char* option : {"-c, --command LINE", "-y, --yes", "-k, --keep-going", "-q, --quiet",
                             "--every-caption", "--trace", "-h, --help", "-V, --version", "SCRIPT"}) {
    EXPECT_NE(help.find(option), std::string::npos) << option;
  }
}

TEST(Options, HelpNamesEveryLineAndGrid) {
  const std::string help = help_text();
  for (const char* word : {"MENU/ITEM", "Set KEYWORD", "Check NAME", "Comment TEXT", "Print WHAT",
                           "Cell GRID", "Key GRID", "Click GRID", "Break N", "Echo TEXT", "Slq,", "Sldim,",
                           "Sllist,", "SlAlgadd,", "Slds1,", "Slsums1,", "Slsums2,", "Slconfig;"}) {
    EXPECT_NE(help.find(word), std::string::npos) << word;
  }
}

TEST(Options, VersionIsNumbers) {
  const std::string version = version_text();
  EXPECT_EQ(version.find("kovbatch "), 0U);
  EXPECT_NE(version.find_first_of("0123456789"), std::string::npos);
  EXPECT_EQ(version.back(), '\n');
}

}  // namespace
}  // namespace kov
