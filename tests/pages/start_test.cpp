// What the command line and the current directory make of the window that opens.
#include <fstream>

#include "pages/window_desk.h"

namespace kov {
namespace {

class Start : public WindowDesk {};

TEST_F(Start, WithoutArgumentsShowsDefaultsAndNoFile) {
  start({});
  EXPECT_EQ(caption(), "kov (no file specified)");
  EXPECT_EQ(title(), "kov (no file specified)");
  EXPECT_EQ(workbench().document.cph.kmi("Slq_ColCount"), 20);
  EXPECT_TRUE(lmap().empty());
  EXPECT_EQ(figure("Nlast"), "no rows");
  EXPECT_EQ(figure("Points"), "0 points");
  EXPECT_EQ(figure("Report"), "kov (no file specified)");
}

TEST_F(Start, TheFileOfTheCommandLineIsReadBeforeTheWindowIsShown) {
  make({"walk2d.aa1"});
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(lmap().count(), 1u);
  EXPECT_EQ(workbench().file.path, folder() / "walk2d.aa1");
  EXPECT_EQ(caption(), "nlast = 0 (0.176 KB = 1e)");
  EXPECT_EQ(title(), "nlast = 0 (0.176 KB = 1e) - walk2d.aa1 - kov");
}

TEST_F(Start, TwoArgumentsAreTooMany) {
  CloseMessage message;
  make({"walk2d.aa1", "walk2d.aa1"});
  EXPECT_EQ(message.text, "Too many start parameters");
  EXPECT_TRUE(lmap().empty());
  EXPECT_EQ(caption(), "kov (no file specified)");
}

TEST_F(Start, AFileThatCannotBeReadLeavesTheDefaultState) {
  CloseMessage message;
  make({"missing.aa1"});
  EXPECT_NE(message.text.find("missing.aa1"), std::string::npos);
  EXPECT_TRUE(lmap().empty());
  EXPECT_FALSE(workbench().file.chosen);
  EXPECT_EQ(title(), "kov (no file specified)");
}

TEST_F(Start, AFileWhoseNameIsNoTextIsRead) {
  std::filesystem::copy_file("walk2d.aa1", "n\xe4me.aa1");
  make({"n\xe4me.aa1"});
  EXPECT_EQ(lmap().count(), 1u);
  EXPECT_EQ(workbench().file.name(), "n\xe4me.aa1");
}

TEST_F(Start, WithoutArgumentsTheUniformConfigurationIsRead) {
  std::ofstream("kovcfg.aa1") << "Slq_ColCount 7 2 1000 1\r\n";
  make({});
  EXPECT_EQ(workbench().document.cph.kmi("Slq_ColCount"), 7);
  EXPECT_EQ(grid("Slq").model()->columnCount(), 6);
  EXPECT_EQ(title(), "kov (no file specified)");
}

}  // namespace
}  // namespace kov
