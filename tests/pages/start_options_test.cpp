#include "app/start_options.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <vector>

namespace kov {
namespace {

using Arguments = std::vector<const char*>;

TEST(StartOptions, HelpAndVersionAreAnsweredWithoutAWindow) {
  EXPECT_EQ(answer_without_window(Arguments{"--help"}).value().substr(0, 18), "Usage: kov [FILE]\n");
  EXPECT_EQ(answer_without_window(Arguments{"--version"}), "kov 1.0.0\n");
}

TEST(StartOptions, EverythingElseIsForTheWindow) {
  for (const Arguments& arguments :
       {Arguments{}, Arguments{"walk2d.aa1"}, Arguments{"./--help"}, Arguments{"-h"}, Arguments{"--helpful"},
        Arguments{""}, Arguments{"--help", "walk2d.aa1"}, Arguments{"walk2d.aa1", "--version"}}) {
    EXPECT_EQ(answer_without_window(arguments), std::nullopt);
  }
}

TEST(StartOptions, NamesOfFilesAreTakenByteByByte) {
  EXPECT_TRUE(start_parameters(Arguments{}).empty());
  const std::vector<std::filesystem::path> expected = {"walk2d.aa1", "n\xe4me.aa1"};
  EXPECT_EQ(start_parameters(Arguments{"walk2d.aa1", "n\xe4me.aa1"}), expected);
}

TEST(StartOptions, TheProgramCarriesItsIcon) {
  const QImage icon = QApplication::windowIcon().pixmap(64, 64).toImage();
  ASSERT_EQ(icon.size(), QSize(64, 64));
  EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(icon.pixelColor(32, 32).alpha(), 255);
  EXPECT_NE(icon.pixelColor(32, 32), icon.pixelColor(32, 4));
}

}  // namespace
}  // namespace kov
