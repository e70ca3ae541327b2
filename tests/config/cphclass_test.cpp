#include "config/cphclass.h"

#include <gtest/gtest.h>

#include "support/recording_messages.h"

namespace kov {
namespace {

using Texts = std::vector<std::string>;

class CphclassTest : public ::testing::Test {
 protected:
  RecordingMessages messages;
  cphclass cph{messages};

  std::string read(std::string_view keyword, std::string_view rest, bool all) {
    Tokens tokens(rest);
    return cph.read_configuration_line(keyword, tokens, all);
  }

  /// Exactly this error was shown, behind a beep, since the last call.
  void expect_error(const std::string& text) {
    EXPECT_EQ(messages.shown, (std::vector<RecordedMessage>{{MessageKind::error, text}}));
    EXPECT_EQ(messages.beeps, 1);
    messages.shown.clear();
    messages.beeps = 0;
  }
  void expect_silence() { EXPECT_EQ(messages.texts(), Texts{}); }
};

class Catalogue : public CphclassTest {
 protected:
  void SetUp() override { cph.InitPrgPar({}); }
};

// Definition

TEST_F(CphclassTest, StartsEmpty) { EXPECT_TRUE(cph.kmap().empty()); }

TEST_F(CphclassTest, DefinesWithAndWithoutTheUniformMark) {
  cph.Ikpair("b", 3, "individual", 1, 5);
  cph.Ukpair("a", -3, "uniform", -5, -1);
  ASSERT_EQ(cph.kmap().size(), 2U);
  const auto& [a, uniform] = *cph.kmap().begin();
  EXPECT_EQ(a, "a");
  EXPECT_EQ(uniform.i, -3);
  EXPECT_EQ(uniform.min, -5);
  EXPECT_EQ(uniform.max, -1);
  EXPECT_EQ(uniform.description, "uniform");
  EXPECT_TRUE(uniform.ucfg);
  const MMI individual = cph.kmap().at("b");
  EXPECT_EQ(individual.i, 3);
  EXPECT_EQ(individual.description, "individual");
  EXPECT_FALSE(individual.ucfg);
  expect_silence();
}

TEST_F(CphclassTest, KeepsTheFirstDefinition) {
  cph.Ikpair("a", 1, "first", 0, 9);
  cph.Ukpair("a", 2, "second", 0, 99);
  expect_error("a\n already defined, new definition\n by Ukpair ignored");
  cph.Ikpair("a", 3, "third", 0, 99);
  expect_error("a\n already defined, new definition\n by Ikpair ignored");
  EXPECT_EQ(cph.kmi("a"), 1);
  EXPECT_EQ(cph.kmap().at("a").description, "first");
  EXPECT_EQ(cph.kmap().at("a").max, 9);
  EXPECT_FALSE(cph.kmap().at("a").ucfg);
}

TEST_F(CphclassTest, TakesTheLastDefinitionWithoutTheDuplicateCheck) {
  cph.set_duplicate_check(false);
  cph.Ikpair("a", 1, "first", 0, 9);
  cph.Ukpair("a", 2, "second", 1, 99);
  expect_silence();
  const MMI a = cph.kmap().at("a");
  EXPECT_EQ(a.i, 2);
  EXPECT_EQ(a.min, 1);
  EXPECT_EQ(a.max, 99);
  EXPECT_EQ(a.description, "second");
  EXPECT_TRUE(a.ucfg);
}

TEST_F(CphclassTest, ReportsADefaultOutsideItsBoundsAndStoresIt) {
  cph.Ikpair("low", 0, "", 1, 5);
  expect_error("low wrong initialized");
  cph.Ukpair("high", 6, "", 1, 5);
  expect_error("high wrong initialized");
  EXPECT_EQ(cph.kmi("low"), 0);
  EXPECT_EQ(cph.kmi("high"), 6);
}

TEST_F(CphclassTest, ReportsADuplicateBeforeItLooksAtTheDefault) {
  cph.Ikpair("a", 1, "", 0, 9);
  cph.Ikpair("a", 10, "", 0, 9);
  expect_error("a\n already defined, new definition\n by Ikpair ignored");
}

TEST_F(CphclassTest, TakesDefaultsAtTheirBounds) {
  cph.Ikpair("least", -2147483647 - 1, "", -2147483647 - 1, 2147483647);
  cph.Ikpair("most", 2147483647, "", -2147483647 - 1, 2147483647);
  expect_silence();
}

TEST_F(CphclassTest, TellsUpperFromLowerCase) {
  cph.Ikpair("a", 1, "", 0, 9);
  cph.Ikpair("A", 2, "", 0, 9);
  expect_silence();
  EXPECT_EQ(cph.kmi("a"), 1);
  EXPECT_EQ(cph.kmi("A"), 2);
  EXPECT_EQ(cph.kmap().begin()->first, "A");
}

// The catalogue

TEST_F(Catalogue, HoldsAllParametersWithTheirDefaults) {
  expect_silence();
  EXPECT_EQ(cph.kmap().size(), 85U);
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 20);
  EXPECT_TRUE(cph.kmap().at("Slq_ColCount").ucfg);
  EXPECT_EQ(cph.kmi("N0iniarea_maxcoo"), 12);
  EXPECT_FALSE(cph.kmap().at("N0iniarea_maxcoo").ucfg);
}

TEST_F(Catalogue, IsDefinedAnewWithoutMessages) {
  cph.setkmi_1("Slq_ColCount", 33);
  read("Graph2a_ny", " 150 -200 200 0", true);
  cph.Ikpair("foreign", 1, "", 0, 9);
  cph.InitPrgPar({.height = 11, .width = 12, .top = 13, .left = 14, .page_count = 3});
  expect_silence();
  EXPECT_EQ(cph.kmap().size(), 85U);
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(cph.kmi("Graph2a_ny"), 0);
  EXPECT_EQ(cph.kmi("F1_Screen_Default_Height"), 11);
  EXPECT_EQ(cph.kmi("F1_Screen_Default_Width"), 12);
  EXPECT_EQ(cph.kmi("F1_Screen_Default_Top"), 13);
  EXPECT_EQ(cph.kmi("F1_Screen_Default_Left"), 14);
  EXPECT_EQ(cph.kmap().at("F1_Initial_Active_Page").max, 2);
  expect_silence();
}

TEST_F(Catalogue, ChecksForDuplicatesAfterItWasDefinedAnew) {
  cph.InitPrgPar({});
  cph.Ukpair("Slq_ColCount", 1, "", 0, 9);
  expect_error("Slq_ColCount\n already defined, new definition\n by Ukpair ignored");
}

TEST_F(Catalogue, IsPutBackFromACopy) {
  const Kmap saved = cph.kmap();
  cph.setkmi_1("Slq_ColCount", 33);
  cph.restore(saved);
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 20);
  EXPECT_EQ(cph.kmap().size(), 85U);
}

// Values

TEST_F(Catalogue, GivesItsDefaultsAndStays) {
  const Kmap at_start = cph.kmap();
  cph.setkmi_1("Slq_ColCount", 33);
  const Kmap defaults = cph.defaults({});
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 33);
  EXPECT_EQ(defaults.at("Slq_ColCount").i, 20);
  EXPECT_EQ(defaults.size(), at_start.size());
  expect_silence();
}

TEST_F(Catalogue, AnUnknownKeywordIsReportedAndReadsAsZero) {
  EXPECT_EQ(cph.kmi("Slq_Colcount"), 0);
  expect_error("kmi:\n   Slq_Colcount\nis no valid keyword,\nperhaps wrong typing in source.\n0 returned");
}

TEST_F(Catalogue, AnUnknownKeywordIsReportedAndNotSet) {
  EXPECT_FALSE(cph.setkmi_1("nothing", 1));
  expect_error(
      "setkmi_1:\n   nothing\nis no valid keyword,\nperhaps wrong typing in source.\n kmi is not set");
  EXPECT_EQ(cph.kmap().size(), 85U);
}

TEST_F(Catalogue, AValueWithinItsBoundsIsSet) {
  for (const std::int32_t value : {1, 127, 64}) {
    EXPECT_TRUE(cph.setkmi_1("Combtest1_nscnt", value));
    EXPECT_EQ(cph.kmi("Combtest1_nscnt"), value);
  }
  expect_silence();
}

TEST_F(Catalogue, AValueOutOfRangeIsReportedAndNotSet) {
  EXPECT_FALSE(cph.setkmi_1("Combtest1_nscnt", 128));
  expect_error("setkmi_1:\n   Combtest1_nscnt\ninput i=128\nout of range [1..127]\n kmi is not set");
  EXPECT_FALSE(cph.setkmi_1("Combtest1_nscnt", 0));
  expect_error("setkmi_1:\n   Combtest1_nscnt\ninput i=0\nout of range [1..127]\n kmi is not set");
  EXPECT_FALSE(cph.setkmi_1("File_in_nelast", -2147483647 - 1));
  expect_error(
      "setkmi_1:\n   File_in_nelast\ninput i=-2147483648\n"
      "out of range [-2147483647..2147483647]\n kmi is not set");
  EXPECT_EQ(cph.kmi("Combtest1_nscnt"), 4);
  EXPECT_EQ(cph.kmi("File_in_nelast"), 0);
}

// Configuration lines

TEST_F(Catalogue, ReadsALine) {
  EXPECT_EQ(read("Slq_RowCount", " 60 2 2000 1", false), "");
  EXPECT_EQ(cph.kmi("Slq_RowCount"), 60);
  EXPECT_EQ(read("Graph2a_ny", " -7 -99 99 0", true), "");
  EXPECT_EQ(cph.kmi("Graph2a_ny"), -7);
}

TEST_F(Catalogue, SkipsALineOfAnUnknownKeyword) {
  const Kmap before = cph.kmap();
  EXPECT_EQ(read("nothing", " 60 2 2000 1", true), "");
  EXPECT_EQ(read("nothing", " x", true), "");
  EXPECT_EQ(cph.kmap().size(), before.size());
  expect_silence();
}

TEST_F(Catalogue, SkipsAnIndividualLineWhenOnlyUniformOnesAreWanted) {
  EXPECT_EQ(read("Graph2a_ny", " 150 -200 200 0", false), "");
  EXPECT_EQ(read("Graph2a_ny", " x", false), "");
  EXPECT_EQ(read("Graph2a_ny", " 150 -200 200 1", false), "") << "the line's own mark does not count";
  EXPECT_EQ(cph.kmi("Graph2a_ny"), 0);
}

TEST_F(Catalogue, ReadsAUniformLineWhateverItsOwnMark) {
  EXPECT_EQ(read("Slq_RowCount", " 60 2 2000 0", false), "");
  EXPECT_EQ(cph.kmi("Slq_RowCount"), 60);
  EXPECT_TRUE(cph.kmap().at("Slq_RowCount").ucfg);
}

TEST_F(Catalogue, ALineMayWidenItsOwnRangeButNotTheCatalogues) {
  EXPECT_EQ(read("Graph2a_ny", " 150 -200 200 0", true), "");
  EXPECT_EQ(cph.kmi("Graph2a_ny"), 150);
  const MMI ny = cph.kmap().at("Graph2a_ny");
  EXPECT_EQ(ny.min, -99);
  EXPECT_EQ(ny.max, 99);
  EXPECT_FALSE(ny.ucfg);
  EXPECT_EQ(ny.description, "Multi 1D graphs with last y_max (ny>0) or y_min (ny<0)");
}

TEST_F(Catalogue, ALineThatFailsChangesNothing) {
  EXPECT_EQ(read("Slq_RowCount", " 1 2 2000 1", true), "Slq_RowCount i = 1 < 2 = min");
  EXPECT_EQ(read("Slq_RowCount", " 2001 2 2000 1", true), "Slq_RowCount i = 2001 > 2000 = max");
  EXPECT_EQ(read("Slq_RowCount", " many 2 2000 1", true), "Slq_RowCount: i is no int");
  EXPECT_EQ(read("Slq_RowCount", " 60 few 2000 1", true), "Slq_RowCount: min is no int");
  EXPECT_EQ(read("Slq_RowCount", " 60 2", true), "Slq_RowCount: max is no int");
  EXPECT_EQ(cph.kmi("Slq_RowCount"), 50);
  expect_silence();
}

TEST_F(Catalogue, TakesAValueAsItWasTyped) {
  EXPECT_TRUE(cph.set_from_text("Slq_ColCount", "25"));
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 25);
  EXPECT_TRUE(cph.set_from_text("Slq_ColCount", "+26"));
  EXPECT_EQ(cph.kmi("Slq_ColCount"), 26);
  expect_silence();
}

TEST_F(Catalogue, ReportsAValueThatCannotBeTakenAsItWasTyped) {
  struct Case {
    const char* keyword;
    const char* text;
    const char* message;
  };
  const char* const unknown =
      "setkmi_1:\n   nothing\nis no valid keyword,\nperhaps wrong typing in source.\n kmi is not set";
  const char* const no_int = "Slq_ColCount: i is no int";
  // clang-format off
  const Case cases[] = {
      {"nothing",      "1",            unknown},
      {"nothing",      "x",            unknown},
      {"nothing",      "99999999999",  unknown},
      {"Slq_ColCount", "",             no_int},
      {"Slq_ColCount", "-",            no_int},
      {"Slq_ColCount", "+-1",          no_int},
      {"Slq_ColCount", "2.5",          no_int},
      {"Slq_ColCount", "25 ",          no_int},
      {"Slq_ColCount", "1001",         "setkmi_1:\n   Slq_ColCount\ninput i=1001\nout of range [2..1000]\n kmi is not set"},
      {"Slq_ColCount", "99999999999",  "setkmi_1:\n   Slq_ColCount\ninput i=99999999999\nout of range [2..1000]\n kmi is not set"},
      {"Slq_ColCount", "-99999999999", "setkmi_1:\n   Slq_ColCount\ninput i=-99999999999\nout of range [2..1000]\n kmi is not set"},
  };
  // clang-format on
  for (const Case& c : cases) {
    messages.shown.clear();
    messages.beeps = 0;
    EXPECT_FALSE(cph.set_from_text(c.keyword, c.text)) << c.text;
    expect_error(c.message);
    EXPECT_EQ(cph.kmi("Slq_ColCount"), 20) << c.text;
  }
}

}  // namespace
}  // namespace kov
