#include "graphs/graph1_view.h"

#include <gtest/gtest.h>

#include "graphs/graph1_desk.h"

namespace kov {
namespace {

struct ViewDesk : Graph1Desk {
  G1Origin origin;
  bool oplot = false;
  G1View view() const { return {par, origin, checked, cph, oplot}; }
};

TEST(G1View, KnowsTheCheckedCurves) {
  ViewDesk desk;
  desk.checked = checks({cb1qq, cb0qa});
  EXPECT_EQ(desk.view().curves(), (std::vector<std::size_t>{cb0qa, cb1qq}));
  EXPECT_TRUE(desk.view().draws_range(0));
  EXPECT_TRUE(desk.view().draws_range(1));
  desk.checked = checks({cb1qq});
  EXPECT_FALSE(desk.view().draws_range(0));
}

TEST(G1View, TwoCurvesMayBeDrawnAgainstEachOther) {
  ViewDesk desk;
  for (const bool oplot : {false, true}) {
    desk.oplot = oplot;
    desk.checked = checks({cb1qq, cb0qa});
    EXPECT_EQ(desk.view().draws_oplot(), oplot);
    desk.checked = checks({cb1qq});
    EXPECT_FALSE(desk.view().draws_oplot());
    desk.checked = checks({cb1qq, cb0qa, cb0qq});
    EXPECT_FALSE(desk.view().draws_oplot());
  }
}

TEST(G1View, TheTitleNamesFileTableAndTheRangesDrawn) {
  ViewDesk desk;
  EXPECT_EQ(desk.view().title(), "range table 0, SR1: l=0 n=0 k1=-...+");
  desk.origin.file_name = "a.aa1";
  desk.origin.table_index = 31;
  desk.checked = checks({cb0qre, cb1qre});
  EXPECT_EQ(desk.view().title(), "a.aa1, range table 31, SR1: l=0 n=0 k1=-...+, SR2: l=0 n=0 k1=+");
  desk.checked = checks({cb1qre});
  EXPECT_EQ(desk.view().title(), "a.aa1, range table 31, SR2: l=0 n=0 k1=+");
}

TEST(G1View, TheTitleOfAnOplotNamesTheCoordinate) {
  ViewDesk desk;
  desk.oplot = true;
  EXPECT_EQ(desk.view().title(), "range table 0, SR1: l=0 n=0 k1=-...+") << "one curve is drawn along x";
  desk.checked = checks({cb0qre, cb0qim});
  EXPECT_EQ(desk.view().title(), "range table 0, SR1: l=0 n=0 k1=-...+, along k1");
  desk.origin.table.icoo_along_x_in_g = {1, 2};
  desk.checked = checks({cb0qre, cb1qre});
  EXPECT_EQ(desk.view().title(),
            "range table 0, SR1: l=0 n=0 k1=-...+, SR2: l=0 n=0 k1=+, along SR1: k1, SR2: k2");
}

TEST(G1View, TheXAxisIsNamedByItsCoordinate) {
  ViewDesk desk;
  desk.origin.table.icoo_along_x_in_g = {0, 2};
  EXPECT_EQ(desk.view().x_name(), "n");
  desk.checked = checks({cb1qre});
  EXPECT_EQ(desk.view().x_name(), "k2");
  desk.checked = checks({cb0qre, cb1qre});
  EXPECT_EQ(desk.view().x_name(), "SR1: n, SR2: k2");
  desk.origin.table.icoo_along_x_in_g = {31, 31};
  EXPECT_EQ(desk.view().x_name(), "l");
}

TEST(G1View, TheYAxisIsNamedByWhatTheCurvesShare) {
  ViewDesk desk;
  EXPECT_EQ(desk.view().y_name(), "SR1: qre");
  desk.origin.divmode = 1;
  EXPECT_EQ(desk.view().y_name(), "SR1/cnt: qre");
  desk.checked = checks({cb0qre, cb1qre});
  EXPECT_EQ(desk.view().y_name(), "qre");
  desk.checked = checks({cb0qre, cb0qa});
  EXPECT_EQ(desk.view().y_name(), "sums");
}

}  // namespace
}  // namespace kov
