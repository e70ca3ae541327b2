#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

namespace kov {
namespace {

/// The name that the environment gives the locale of numbers, by POSIX's order of precedence.
std::string requested_locale() {
  for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

// All test programs share one main. If it did not adopt the environment's locale, a run under a locale
// with a decimal comma would prove nothing.
TEST(Locale, IsThatOfTheEnvironment) {
  const std::string adopted = std::setlocale(LC_NUMERIC, nullptr);
  const char* available = std::setlocale(LC_NUMERIC, requested_locale().c_str());
  EXPECT_EQ(adopted, available == nullptr ? "C" : available);
  std::setlocale(LC_NUMERIC, adopted.c_str());
}

}  // namespace
}  // namespace kov
