// The rules on planted trees: each must find its violation and pass over what only looks like one.

#include <gtest/gtest.h>

#include "architecture/include_rules.h"
#include "architecture/source_tree.h"
#include "architecture/text_rules.h"

namespace kov::architecture {
namespace {

const SourceFile layer_table = {
    "CMakeLists.txt",
    {"kov_layer(text)", "kov_layer(numbers DEPENDS text)", "kov_layer(lattice DEPENDS numbers)",
     "kov_layer(sums DEPENDS lattice)", "kov_layer(algadd DEPENDS lattice)",
     "kov_layer(widgets DEPENDS text)", "kov_layer(lattice/qt DEPENDS lattice widgets)"}};

/// A tree with one file at each path that the cases include, and the file under test.
SourceTree tree_with(SourceFile file) {
  SourceTree tree;
  for (const char* path :
       {"src/text/t.h", "src/numbers/n.h", "src/lattice/l.h", "src/sums/s.h", "src/algadd/a.h",
        "src/lattice/qt/page.h", "src/batch/b.h", "tests/support/helper.h"}) {
    if (file.path != path) tree.files.push_back({path, {"#pragma once"}});
  }
  tree.files.push_back(std::move(file));
  return tree;
}

Findings findings_for_include(const std::string& path, const std::string& include) {
  Findings ignored;
  Findings findings =
      forbidden_includes(tree_with({path, {"#pragma once", include}}), declared_layers(layer_table, ignored));
  std::erase_if(findings, [&](const std::string& text) { return !text.starts_with(path + ":"); });
  return findings;
}

struct IncludeCase {
  const char* path;
  const char* include;
  /// Part of the finding; empty when the include is allowed.
  const char* finding;
};

// clang-format off
const IncludeCase include_cases[] = {
    {"src/lattice/x.h",      "#include \"text/t.h\"",          ""},
    {"src/lattice/x.h",      "#include \"numbers/n.h\"",       ""},
    {"src/lattice/x.cpp",    "#include \"lattice/l.h\"",       ""},
    {"src/sums/deep/x.cpp",  "#include \"text/t.h\"",          ""},
    {"src/numbers/x.h",      "#include \"lattice/l.h\"",       ":2: layer numbers must not include \"lattice/l.h\""},
    {"src/text/x.h",         "#include \"numbers/n.h\"",       "layer text must not include"},
    {"src/sums/x.h",         "#include \"algadd/a.h\"",        "layer sums must not include \"algadd/a.h\""},
    {"src/algadd/x.h",       "#  include   \"sums/s.h\"  // ", "layer algadd must not include \"sums/s.h\""},
    {"src/lattice/x.h",      "#include \"lattice/qt/page.h\"", "layer lattice must not include"},
    {"src/lattice/x.h",      "#include \"support/helper.h\"",  "\"support/helper.h\" is no file of src"},
    {"src/lattice/x.h",      "#include \"../../tests/support/helper.h\"", "is no file of src"},
    {"src/lattice/x.h",      "#include \"l.h\"",               "\"l.h\" is no file of src"},
    {"src/batch/x.h",        "#include <vector>",              "in no layer that CMakeLists.txt declares"},
    {"src/x.h",              "#include <vector>",              "in no layer that CMakeLists.txt declares"},
    {"src/lattice/x.h",      "#include <vector>",              ""},
    {"src/lattice/x.h",      "#include <unistd.h>",            ""},
    {"src/lattice/x.h",      "#include <sys/stat.h>",          ""},
    {"src/lattice/x.h",      "#include <stdio.h>",             "stdio.h is of neither"},
    {"src/lattice/x.h",      "#include <QString>",             "Qt (QString) outside"},
    {"src/lattice/x.h",      "#include <QtGui/QImage>",        "Qt (QtGui/QImage) outside"},
    {"src/lattice/qt/x.h",   "#include <QTableView>",          ""},
    {"src/lattice/qt/x.h",   "#include \"lattice/l.h\"",       ""},
    {"src/widgets/x.h",      "#include <QWidget>",             ""},
    {"src/lattice/x.h",      "#include <gtest/gtest.h>",       "gtest/gtest.h is of neither"},
    {"src/lattice/x.h",      "#include <gmp.h>",               "gmp.h is of neither"},
    {"src/lattice/x.h",      "// #include \"sums/s.h\"",       ""},
};
// clang-format on

TEST(IncludeRules, FindUpwardSidewaysAndForeignIncludes) {
  for (const auto& [path, include, expected] : include_cases) {
    const Findings findings = findings_for_include(path, include);
    if (*expected == '\0') {
      EXPECT_TRUE(findings.empty()) << path << " " << include << ": " << findings.front();
      continue;
    }
    ASSERT_EQ(findings.size(), 1u) << path << " " << include;
    EXPECT_NE(findings.front().find(expected), std::string::npos) << findings.front();
  }
}

TEST(IncludeRules, FindALayerThatStandsOnALaterOne) {
  Findings findings;
  declared_layers({"CMakeLists.txt", {"kov_layer(text DEPENDS numbers)", "kov_layer(numbers)"}}, findings);
  EXPECT_EQ(findings, Findings{"CMakeLists.txt:1: layer text stands on undeclared numbers"});
}

TEST(IncludeRules, FindACycle) {
  const SourceTree tree = {{{"src/text/a.h", {"#include \"text/b.h\""}},
                            {"src/text/b.h", {"#include <map>", "#include \"text/c.h\""}},
                            {"src/text/c.h", {"#include \"text/b.h\"", "#include \"text/d.h\""}},
                            {"src/text/d.h", {}}}};
  EXPECT_EQ(include_cycles(tree),
            Findings{"src/text/c.h:1: cycle: src/text/b.h -> src/text/c.h -> src/text/b.h"});
}

TEST(TextRules, FindAHeaderWithoutGuard) {
  const SourceTree tree = {{{"src/text/good.h", {"// Why.", "", "#pragma once", "int f();"}},
                            {"src/text/late.h", {"int f();", "#pragma once"}},
                            {"src/text/empty.h", {}},
                            {"src/text/body.cpp", {"int f() { return 1; }"}}}};
  EXPECT_EQ(headers_without_guard(tree), (Findings{"src/text/late.h:1: #pragma once must come first",
                                                   "src/text/empty.h:1: #pragma once must come first"}));
}

TEST(TextRules, FindAnOverlongFile) {
  const SourceTree tree = {{{"src/text/at_limit.cpp", std::vector<std::string>(longest_file)},
                            {"src/text/beyond.cpp", std::vector<std::string>(longest_file + 1)},
                            {"docs/long.md", std::vector<std::string>(2 * longest_file)}}};
  EXPECT_EQ(overlong_files(tree), Findings{"src/text/beyond.cpp:401: more than 400 lines"});
}

TEST(TextRules, FindMarksOfUnfinishedWork) {
  const std::string mark = std::string("TO") + "DO";
  const SourceTree tree = {{{"src/text/a.cpp", {"int f();", "// " + mark + ": more"}},
                            {"docs/b.md",
                             {"A method",
                              "MASTO"
                              "DON"}},
                            {"test",
                             {"# FIX"
                              "ME"}}}};
  EXPECT_EQ(marks_of_unfinished_work(tree), (Findings{"src/text/a.cpp:2: unfinished work: " + mark,
                                                      "test:1: unfinished work: FIX"
                                                      "ME"}));
}

struct NumberCase {
  const char* path;
  const char* line;
  /// The function that is found; empty when the line is fine.
  const char* found;
};

// clang-format off
const NumberCase number_cases[] = {
    {"src/lattice/a.cpp",   "std::snprintf(buffer, 10, \"%g\", x);", "snprintf"},
    {"src/lattice/a.cpp",   "printf(\"x\");",                        "printf"},
    {"src/lattice/a.cpp",   "std::fprintf(stderr, \"x\");",          "fprintf"},
    {"src/lattice/a.cpp",   "sscanf(line, \"%d\", &i);",             "sscanf"},
    {"src/lattice/a.cpp",   "x = std::strtod(text, &end);",          "strtod"},
    {"src/lattice/a.cpp",   "i = std::stoi(text);",                  "stoi"},
    {"src/lattice/a.cpp",   "d = stod (text);",                      "stod"},
    {"src/lattice/a.cpp",   "i = atoi(text);",                       "atoi"},
    {"src/lattice/a.cpp",   "std::ostringstream out;",               "ostringstream"},
    {"src/lattice/a.cpp",   "return std::to_string(i);",             "to_string"},
    {"src/text/a.cpp",      "return std::to_string(i);",             ""},
    {"src/text/a.cpp",      "return std::stoi(i);",                  "stoi"},
    {"src/lattice/a.cpp",   "return to_text(q);",                    ""},
    {"src/lattice/a.cpp",   "// as printf would",                    ""},
    {"src/lattice/a.cpp",   "show(\"printf\"); /* stoi */",          ""},
    {"src/lattice/a.cpp",   "n = 1'000; x = stod(\"1'0\");",         "stod"},
    {"src/lattice/a.cpp",   "c = '\"'; x = stod(t);",                "stod"},
    {"src/lattice/a.cpp",   "s = \"\\\"\"; x = stod(t);",            "stod"},
    {"src/lattice/a.cpp",   "s = R\"(stoi \")\"; x = stod(t);",      "stod"},
    {"src/lattice/a.cpp",   "footprint(x);",                         ""},
    {"tests/lattice/a.cpp", "return std::to_string(i);",             ""},
};
// clang-format on

TEST(TextRules, FindNumbersByTheLocale) {
  for (const auto& [path, line, found] : number_cases) {
    const Findings findings = locale_dependent_numbers({{{path, {line}}}});
    ASSERT_EQ(findings.size(), *found == '\0' ? 0u : 1u) << line;
    if (findings.empty()) continue;
    EXPECT_TRUE(findings.front().ends_with(std::string(" ") + found)) << findings.front();
  }
}

TEST(TextRules, SeeNoCodeInLongComments) {
  const SourceFile file = {"src/text/a.cpp",
                           {"int a; /* stoi", "stod */ int b;", "s = R\"x(", "stof", ")x\"; atoi(t);"}};
  EXPECT_EQ(locale_dependent_numbers({{file}}), Findings{"src/text/a.cpp:5: depends on the locale: atoi"});
}

TEST(TextRules, FindUnlistedDecisions) {
  const SourceTree tree = {{{"docs/decisions/0001-a.md", {}},
                            {"docs/decisions/0002-b.md", {}},
                            {"docs/decisions/README.md", {"- [First](0001-a.md)", "0002-b.md"}}}};
  EXPECT_EQ(unlisted_decisions(tree),
            Findings{"docs/decisions/0002-b.md:1: not listed in docs/decisions/README.md"});
}

TEST(TextRules, FindDeadLinks) {
  const SourceTree tree = {
      {{"README.md", {"[a](docs/architecture.md#layers) [b](docs/nowhere.md)", "[c](https://example.org)"}},
       {"docs/x.md", {"[d](../README.md) [e](architecture.md) [f](README.md)"}}}};
  EXPECT_EQ(dead_links(tree, KOV_SOURCE_DIR),
            (Findings{"README.md:1: dead link: docs/nowhere.md", "docs/x.md:1: dead link: README.md"}));
}

}  // namespace
}  // namespace kov::architecture
