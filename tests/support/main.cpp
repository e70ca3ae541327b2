#include <gtest/gtest.h>

#include <clocale>

// The environment's locale is adopted on purpose: under a locale with a decimal comma every test must
// still pass, since no number of this system is read or written by way of the locale.
int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
