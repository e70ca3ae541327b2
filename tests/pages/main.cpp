#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

// As in the program: the application object adopts the locale of the environment, and numbers do not.
int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
