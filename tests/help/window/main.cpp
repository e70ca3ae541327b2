#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

// A test that dies is run in a process of its own, since what it takes away from Qt cannot be given back.
int main(int argc, char** argv) {
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName("test_help_window");
  ::testing::InitGoogleTest(&argc, argv);
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  return RUN_ALL_TESTS();
}
