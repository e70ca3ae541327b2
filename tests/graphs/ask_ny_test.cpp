#include "graphs/ask_ny.h"

#include <gtest/gtest.h>

#include "graphs/map_desk.h"

namespace kov {
namespace {

class AskNyTest : public testing::Test, protected MapDesk {
 protected:
  bool ask(const std::string& answer) {
    person.set_answers({answer});
    return Button_g2a_nyClick(cph, person.user());
  }
};

constexpr const char* question =
    "dialog: Input ny: Graph 2 mode is dependent of ny:\n  ny <0: Curves along x for many y,\n    frontal "
    "curve 1 in "
    "y_min\n  ny >0: Curves along x for many y,\n    frontal curve 1 in y_max\n  ny==0: 2d graph along x and "
    "y\n  "
    "\n  To set ny to a new integer i\n  enter integer i [-99<=i<=99] -> ";

TEST_F(AskNyTest, StoresANewNyAndTellsThatItIsNew) {
  EXPECT_TRUE(ask("5"));
  EXPECT_EQ(take_reports(), Reports{std::string(question) + "5"});
  EXPECT_EQ(cph.kmi("Graph2a_ny"), 5);
  EXPECT_EQ(Button_g2a_ny_caption(cph), "set ny:5");
  EXPECT_FALSE(ask("5")) << "not changed";
  EXPECT_TRUE(ask("-99"));
  EXPECT_EQ(Button_g2a_ny_caption(cph), "set ny:-99");
}

TEST_F(AskNyTest, KeepsTheOldOneWhenRefused) {
  EXPECT_FALSE(ask("100"));
  EXPECT_EQ(take_reports(), (Reports{std::string(question) + "100", "refused: 100"}));
  EXPECT_FALSE(ask("x"));
  EXPECT_EQ(cph.kmi("Graph2a_ny"), 0);
}

TEST_F(AskNyTest, WithoutTheParameterThereIsNothingToAsk) {
  cphclass empty(person);
  EXPECT_FALSE(Button_g2a_nyClick(empty, person.user()));
  EXPECT_EQ(take_reports(), (Reports{"beep", "error: Button_g2a_nyClick: Key not found"}));
}

}  // namespace
}  // namespace kov
