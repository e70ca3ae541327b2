#include "interact/messages.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kov {
namespace {

/// Writes down what would be seen and heard, in order.
class Witness final : public Messages {
 public:
  std::string seen;

 protected:
  void show(MessageKind kind, const std::string& text) override {
    static constexpr const char* names[] = {"error", "warning", "remark", "information"};
    seen += std::string("[") + names[static_cast<int>(kind)] + " " + text + "]";
  }
  void ring() override { seen += "*"; }
};

struct Row {
  void (Messages::*tell)(const std::string&);
  std::vector<std::string> seen_at_level_0_to_4;
};

TEST(Messages, AreFilteredByTheWarningLevel) {
  // clang-format off
  const std::vector<Row> rows = {
      {&Messages::error,             {"*[error x]", "*[error x]", "*[error x]", "*[error x]", "*[error x]"}},
      {&Messages::essential_warning, {"[warning x]", "*[warning x]", "*[warning x]", "*[warning x]", "*[warning x]"}},
      {&Messages::warning,           {"", "*", "*[warning x]", "*[warning x]", "*[warning x]"}},
      {&Messages::minor_warning,     {"", "*", "*", "*[warning x]", "*[warning x]"}},
      {&Messages::remark,            {"", "", "", "", "[remark x]"}},
      {&Messages::information,       {"[information x]", "[information x]", "[information x]", "[information x]", "[information x]"}},
  };
  // clang-format on
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (int level = Messages::lowest_level; level <= Messages::highest_level; ++level) {
      Witness witness;
      witness.set_wl(level);
      (witness.*rows[row].tell)("x");
      EXPECT_EQ(witness.seen, rows[row].seen_at_level_0_to_4[static_cast<std::size_t>(level)])
          << "row " << row << " level " << level;
    }
  }
}

TEST(Messages, BeepAtEveryLevel) {
  for (int level = Messages::lowest_level; level <= Messages::highest_level; ++level) {
    Witness witness;
    witness.set_wl(level);
    witness.beep();
    EXPECT_EQ(witness.seen, "*");
  }
}

TEST(Messages, StartAtTheLevelOfUsualWarnings) { EXPECT_EQ(Witness().wl(), 2); }

TEST(Messages, IgnoreALevelThatThereIsNot) {
  Witness witness;
  for (const int level : {-1, 5, 1000, -2147483647}) {
    witness.set_wl(level);
    EXPECT_EQ(witness.wl(), 2) << level;
  }
  witness.set_wl(0);
  EXPECT_EQ(witness.wl(), 0);
  witness.set_wl(4);
  EXPECT_EQ(witness.wl(), 4);
}

}  // namespace
}  // namespace kov
