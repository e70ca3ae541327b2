// What the examples of the help say is what happens.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "batch/session.h"
#include "help/cut_and_normalise.h"
#include "help/help_pages.h"
#include "interact/scripted_user.h"
#include "support/temporary_folder.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* rest = " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0";

/// The entries that a page has typed, as lines of a data file: p, ldest, l, n, k1 and k2 of each.
std::string table_file(const std::vector<std::string>& entries, const std::string& further = "") {
  std::string text;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    text += "e_aa 0 " + int_text(static_cast<std::int64_t>(i)) + " " + entries[i] + rest + "\n";
  }
  return text + further;
}

const std::string walk_table =
    table_file({"1/4 0 0 1 1 0", "1/4 0 0 1 -1 0", "1/4 0 0 1 0 1", "1/4 0 0 1 0 -1"});

const std::string& page_text(const std::string& file) { return help_pages().at(file).text; }

/// The blocks of a page that are shown as they are, entities as characters.
std::string preformatted(const std::string& file, const std::string& first_words) {
  const std::string& source = help_pages().at(file).source;
  const std::size_t begin = source.find("<pre>" + first_words);
  if (begin == std::string::npos) return {};
  return with_characters(source.substr(begin + 5, source.find("</pre>", begin) - begin - 5));
}

TEST(HelpExamples, WalkInThePlane) {
  Session session;
  write_text("walk.aa1", walk_table);
  session.run(
      "File/Open: walk.aa1\nCmd/Delete All\nMod/Init n=0 with 1\nAlg/Start Algadd 0: 2\nPrint status\n");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output, "nlast = 2 (2.464 KB = 14e)\n");
  EXPECT_NE(page_text("walk.html").find("nlast = 2 (2.464 KB = 14e)"), std::string::npos);
}

TEST(HelpExamples, WalkInThePlanePointByPoint) {
  Session session;
  write_text("walk.aa1", walk_table);
  std::string shown;
  session.inspect = [&shown](const Workbench& workbench) {
    for (int k2 = -2; k2 <= 2; ++k2) {
      shown += int_text(k2);
      for (int k1 = -2; k1 <= 2; ++k1) {
        Lk key = Lk::at(0, 2, k1);
        key.coo[2] = k2;
        shown += "</td><td>" + to_text(workbench.document.lmap.get(key));
      }
      shown += "\n";
    }
  };
  session.run("File/Open: walk.aa1\nMod/Init n=0 with 1\nAlg/Start Algadd 0: 2\n");
  const std::string& page = help_pages().at("walk.html").source;
  for (std::size_t begin = 0, end; begin < shown.size(); begin = end + 1) {
    end = shown.find('\n', begin);
    std::string row = "<tr><th>" + shown.substr(begin, end - begin) + "</td></tr>";
    row.replace(row.find("</td>"), 5, "</th>");
    EXPECT_NE(page.find(row), std::string::npos) << row;
  }
}

TEST(HelpExamples, WalkInThePlaneSummedUp) {
  Session session;
  constexpr const char* bounds = "2147483647";
  std::string all_min;
  std::string all_max;
  for (int i = 0; i < MaxDimCount; ++i) {
    // In table order the step n is the second value; Range 1 is row 2.
    all_min += i == 1 ? " 2" : std::string(" -") + "2147483648";
    all_max += i == 1 ? " 2" : std::string(" ") + bounds;
  }
  write_text("walk.aa1",
             walk_table + "e_sums1_range1min 0" + all_min + "\ne_sums1_range1max 0" + all_max + "\n");
  session.run("File/Open: walk.aa1\nMod/Init n=0 with 1\nAlg/Start Algadd 0: 2\nPrint Slsums1\n");
  EXPECT_EQ(session.status, 0);
  for (const auto& [label, range, total] :
       {std::tuple{"s   : cnt", "9", "14"}, std::tuple{"s   : Sum  q  ", "1", "3"},
        std::tuple{"s   : Sum| q |^2", "0.140625", "1.390625"}}) {
    const std::string row = with_single_blanks(std::string(label));
    EXPECT_NE(session.output.find(std::string(label) + "\t" + range + "\t"), std::string::npos)
        << session.output;
    EXPECT_NE(help_pages()
                  .at("walk.html")
                  .source.find("</td><td>" + std::string(range) + "</td><td>" + total + "</td></tr>"),
              std::string::npos)
        << row;
  }
}

TEST(HelpExamples, Gambler) {
  Session session;
  std::string start = "e_l 0 0 3";
  for (int i = 3; i < MaxDimCount; ++i) start += " 0";
  write_text("game.aa1", table_file({"1/2 0 0 1 1 0", "1/2 0 0 1 -1 0", "1 1 1 1 0 0"}, start + " 1\n"));
  std::string absorbed;
  session.inspect = [&absorbed](const Workbench& workbench) {
    absorbed = to_text(workbench.document.lmap.get(Lk::at(1, 3)));
  };
  session.run("File/Open: game.aa1\nSet Obarr0_ldest1 1\nSet Obarr1_k1 -1\nAlg/Start Algadd 0: 3\n");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(absorbed, "1/8");
  EXPECT_NE(page_text("alg_menu.html").find("After 3 steps lattice 1 holds " + absorbed), std::string::npos);
}

TEST(HelpExamples, DataFile) {
  Session session;
  write_text("line.aa1", preformatted("data_file.html", "; Everything"));
  session.run("File/Open: line.aa1\nAlg/DelAndDo Algadd Steps\nPrint status\n");
  EXPECT_EQ(session.status, 0);
  EXPECT_EQ(session.output.substr(0, 11), "nlast = 100");
}

/// With fewer steps, which changes nothing in what the lines mean.
TEST(HelpExamples, KovbatchScript) {
  std::string script = preformatted("kovbatch.html", "; a walk in the plane");
  const std::size_t steps = script.find("with del: 200\n");
  ASSERT_NE(steps, std::string::npos);
  script.replace(steps, 13, "with del: 20");
  Session session;
  std::filesystem::copy(KOV_SOURCE_DIR "/examples/walk2d.aa1", session.folder.path());
  session.run(script + "\n");
  EXPECT_EQ(session.status, 0);
  EXPECT_TRUE(session.output.starts_with("nlast = 20 (77.616 KB = 441e)\n\t")) << session.output;
  EXPECT_TRUE(std::filesystem::exists("walk2d-200.aa1"));
}

TEST(HelpExamples, KovbatchTable) {
  const std::string script = preformatted("kovbatch.html", "Cell SlAlgadd");
  ASSERT_NE(script, "");
  Session session;
  session.run(script + "\n");
  EXPECT_EQ(session.status, 0);
  const std::string row = text_of("row10.txt");
  EXPECT_TRUE(row.starts_with("1\t1/1024\t0\t10\t-10\t0\t")) << row;
  EXPECT_NE(row.find("\n6\t63/256\t0\t10\t0\t0\t"), std::string::npos) << row;
}

TEST(HelpExamples, StatusLine) {
  const std::string printed = text_of(KOV_SOURCE_DIR "/examples/walk2d.out");
  EXPECT_NE(page_text("overview.html").find(printed.substr(0, printed.find('\n'))), std::string::npos);
}

TEST(OwnAlgorithm, IsWhatThePageShows) {
  const std::string source = text_of(KOV_SOURCE_DIR "/tests/help/cut_and_normalise.cpp");
  const std::string mark = "// Example:\n";
  const std::size_t begin = source.find(mark);
  ASSERT_NE(begin, std::string::npos);
  const std::size_t end = source.find("\n}\n", begin);
  EXPECT_EQ(preformatted("own_algorithm.html", "void cut_and_normalise"),
            source.substr(begin + mark.size(), end + 3 - begin - mark.size()));
}

struct OwnAlgorithmDesk {
  std::vector<std::string> reports;
  ScriptedUser person{[this](const std::string& report) { reports.push_back(report); },
                      ScriptedUser::Captions::every};
  cphclass cph{person};
  Lmap lmap;

  OwnAlgorithmDesk() { cph.InitPrgPar({}); }
};

TEST(OwnAlgorithm, CutsAndNormalises) {
  OwnAlgorithmDesk desk;
  desk.lmap.set(Lk::at(0, 0, 99), 7);
  for (const int k1 : {-2, -1, 1, 2}) desk.lmap.set(Lk::at(0, 1, k1), cotyp(1, 4, 0, 1));
  desk.cph.setkmi_1("N0iniarea_maxcoo", 1);
  cut_and_normalise(desk.lmap, desk.cph, desk.person.user());
  EXPECT_EQ(desk.lmap.count(), 3u);
  EXPECT_EQ(to_text(desk.lmap.get(Lk::at(0, 0, 99))), "7");
  EXPECT_EQ(to_text(desk.lmap.get(Lk::at(0, 1, -1))), "1/2");
  EXPECT_EQ(to_text(desk.lmap.get(Lk::at(0, 1, 1))), "1/2");
  EXPECT_EQ(desk.reports, std::vector<std::string>{"message: 2 points kept"});
}

TEST(OwnAlgorithm, DoesNothingWithoutPoints) {
  OwnAlgorithmDesk desk;
  cut_and_normalise(desk.lmap, desk.cph, desk.person.user());
  EXPECT_TRUE(desk.lmap.empty());
  EXPECT_TRUE(desk.reports.empty());
}

}  // namespace
}  // namespace kov
