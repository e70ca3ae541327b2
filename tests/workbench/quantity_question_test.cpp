#include "workbench/quantity_question.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "interact/scripted_user.h"

namespace kov {
namespace {

TEST(AskQuantity, TakesTheTextFormOfQuantities) {
  std::vector<std::string> reports;
  ScriptedUser person([&](const std::string& report) { reports.push_back(report); });
  person.set_answers({" 1/2-3/4i "});
  const auto c = ask_quantity(person, "Multiply", "By a number c");
  ASSERT_TRUE(c.has_value());
  EXPECT_EQ(*c, cotyp(1, 2, -3, 4));
  EXPECT_EQ(reports, std::vector<std::string>{
                         "dialog: Multiply: By a number c\n  enter complex number c ->  1/2-3/4i "});
}

TEST(AskQuantity, GivesNothingForAnyOtherText) {
  for (const char* answer : {"", "x", "1/0", "1,5", "nan"}) {
    ScriptedUser person([](const std::string&) {});
    person.set_answers({answer});
    EXPECT_FALSE(ask_quantity(person, "", "").has_value()) << answer;
    EXPECT_TRUE(person.take_failure()) << answer;
  }
}

}  // namespace
}  // namespace kov
