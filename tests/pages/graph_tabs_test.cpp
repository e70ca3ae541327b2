#include <QGroupBox>
#include <QPushButton>
#include <algorithm>

#include "lattice/lattice_status.h"
#include "pages/graph_desk.h"

namespace kov {
namespace {

using GraphTabs = GraphDesk;

TEST_F(GraphTabs, TheFirstPageToBeSeenIsCalculatedOnce) {
  for (const int page : {graph1, graph2}) {
    save_walk_that_opens_at(page);
    make({"opens.aa1"});
    EXPECT_EQ(shown_tab(), page);
    EXPECT_FALSE(item("Save picture").isEnabled());
    const QString first = QString("lattice point 1 of %1 checked").arg(lmap().count());
    int calculations = 0;
    QObject here;
    QObject::connect(window.get(), &QWidget::windowTitleChanged, &here, [&](const QString& title) {
      if (title.startsWith(first)) ++calculations;
    });
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    settle();
    QTest::qWait(2 * GraphImage::rest_in_ms);
    EXPECT_EQ(calculations, 1) << page;
    EXPECT_FALSE(image().image().isNull());
    EXPECT_TRUE(item("Save picture").isEnabled());
  }
}

TEST_F(GraphTabs, AnEmptyPageShowsItsLabel) {
  start({});
  choose_tab(graph1);
  settle();
  EXPECT_TRUE(image().image().isNull());
  EXPECT_TRUE(label_shown());
  choose_tab(graph2);
  settle();
  EXPECT_EQ(label(), " no different x");
  EXPECT_TRUE(image().image().isNull());
}

TEST_F(GraphTabs, Graph1IsDrawnInThePixelsOfItsImage) {
  start_walk(graph1);
  EXPECT_FALSE(label_shown());
  EXPECT_EQ(image().image().size(), image().size() * image().devicePixelRatio());
  const QImage shown = image().grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(shown, image().image());
}

TEST_F(GraphTabs, TheCheckBoxesAreThePagesAndTheParameters) {
  start_walk(graph1);
  EXPECT_TRUE(widget<QCheckBox>("CB0qre").isChecked());
  EXPECT_FALSE(widget<QCheckBox>("CB0qa").isChecked());
  const QImage before = image().image();
  check("CB0qa");
  EXPECT_TRUE(workbench().graph1_checked[g1_qa]);
  EXPECT_EQ(cph().kmi("Graph1_CB0qa_checked"), 1);
  settle();
  EXPECT_NE(image().image(), before);
  check("CB1cntAt");
  EXPECT_TRUE(workbench().graph1_checked[g1_quantity_count + g1_cntAt]);
  set("Graph1_CB0qq_checked", 1);
  EXPECT_TRUE(widget<QCheckBox>("CB0qq").isChecked());
}

TEST_F(GraphTabs, TheCheckBoxesStandInTwoGroupsWithCaptions) {
  start_walk(graph1);
  std::vector<std::string> boxes;
  for (const char* group : {"SR1Group", "SR2Group"}) {
    for (const QCheckBox* box : widget<QGroupBox>(group).findChildren<QCheckBox*>()) {
      boxes.push_back(box->objectName().toStdString());
    }
  }
  EXPECT_EQ(boxes, (std::vector<std::string>{"CB0qre", "CB0qim", "CB0qa", "CB0qq", "CB0cntAt", "CB1qre",
                                             "CB1qim", "CB1qa", "CB1qq", "CB1cntAt"}));
  EXPECT_EQ(widget<QGroupBox>("SR1Group").title(), "SR1:");
  set("Graph1_divmode", 1);
  EXPECT_EQ(widget<QGroupBox>("SR1Group").title(), "SR1/cnt:");
  EXPECT_EQ(widget<QGroupBox>("SR2Group").title(), "SR2/cnt:");
}

TEST_F(GraphTabs, AClickCalculatesUnlessTheScaleIsCommon) {
  start_walk(graph1);
  set("Graph1_quick_xscale_r12_common", 1);
  settle();
  const auto count = window->pages().graph1().par().range[0].count;
  const QImage before = image().image();
  add_point_behind_the_page();
  check("CB0qa");
  settle();
  EXPECT_EQ(window->pages().graph1().par().range[0].count, count);
  EXPECT_NE(image().image(), before);
  cph().setkmi_1("Graph1_quick_xscale_r12_common", 0);
  check("CB0qa");
  EXPECT_EQ(window->pages().graph1().par().range[0].count, count + 1);
}

TEST_F(GraphTabs, TheOplotLabelDrawsTwoCurvesAgainstEachOther) {
  start_walk(graph1);
  check("CB0qq");
  settle();
  const QImage along_x = image().image();
  auto& label = widget<QPushButton>("Label_g1_oplot");
  EXPECT_EQ(label.text(), "oplot: off");
  QTest::mouseClick(&label, Qt::LeftButton);
  EXPECT_EQ(label.text(), "oplot: on");
  EXPECT_EQ(cph().kmi("Graph1_oplot_if_2_curves"), 1);
  settle();
  EXPECT_NE(image().image(), along_x);
  label.setFocus();
  press(Qt::Key_Space);
  EXPECT_EQ(label.text(), "oplot: off");
  settle();
  EXPECT_EQ(image().image(), along_x);
}

TEST_F(GraphTabs, TheShownPageFollowsTheStore) {
  start_walk(graph1);
  const QImage before = image().image();
  workbench().document.cph.setkmi_1("Algadd_DefaultStepCount", 12);
  press(Qt::Key_A, Qt::ControlModifier);
  settle();
  EXPECT_NE(image().image(), before);
  trigger("Cmd/Delete All");
  settle();
  EXPECT_TRUE(image().image().isNull());
  EXPECT_TRUE(label_shown());
}

TEST_F(GraphTabs, TheStatusLineComesBackAfterACalculation) {
  start_walk(graph1);
  const std::string status = caption();
  EXPECT_EQ(status, status_line(lmap()));
  choose_tab(graph2);
  settle();
  EXPECT_EQ(caption(), status);
  window->resize(window->width() + 100, window->height());
  settle();
  EXPECT_EQ(caption(), status);
}

TEST_F(GraphTabs, AResizeStretchesFirstAndDrawsOnceItRests) {
  start_walk(graph1);
  const int width = image().width();
  const int columns = window->pages().graph1().par().hpixcount;
  window->resize(window->width() + 100, window->height());
  window->resize(window->width() + 100, window->height());
  ASSERT_EQ(image().width(), width + 200);
  EXPECT_EQ(image().image().width(), width);
  EXPECT_EQ(window->pages().graph1().par().hpixcount, columns);
  settle();
  EXPECT_EQ(image().image().width(), width + 200);
  EXPECT_EQ(window->pages().graph1().par().hpixcount, columns + 200);
}

TEST_F(GraphTabs, APageIsCalculatedForItsSizeBeforeItIsShown) {
  start();
  press_ctrl_a();
  choose_tab(graph2);
  const auto* drawing = window->pages().graph2().drawing();
  ASSERT_NE(drawing, nullptr);
  const int columns = drawing->map.x.pixels;
  add_point_behind_the_page();
  settle();
  EXPECT_FALSE(image().image().isNull());
  EXPECT_EQ(window->pages().graph2().drawing()->map.x.pixels, columns);
  // Not calculated again: the point is not seen.
  EXPECT_LT(window->pages().graph2().drawing()->map.x.max, 1000);
}

TEST_F(GraphTabs, TheRadioButtonsChooseTheMap) {
  start_walk(graph2);
  EXPECT_EQ(widget<QGroupBox>("Map1Group").title(), "SR1:");
  EXPECT_TRUE(widget<QRadioButton>("RB0re").isChecked());
  const QImage before = image().image();
  choose_radio("RB1cntAt");
  EXPECT_EQ(workbench().graph2_radio_index, 9);
  EXPECT_EQ(cph().kmi("Graph2_RB_re_im_qa_qq_cntAt_12"), 9);
  EXPECT_FALSE(widget<QRadioButton>("RB0re").isChecked());
  settle();
  EXPECT_NE(image().image(), before);
  set("Graph2_divide_y_by_count", 1);
  EXPECT_EQ(widget<QGroupBox>("Map2Group").title(), "SR2/cnt:");
}

TEST_F(GraphTabs, TheRadioButtonsAreThoseOfTheIndex) {
  start_walk(graph2);
  const std::vector<const char*> names = {"RB0re", "RB0im", "RB0qa", "RB0qq", "RB0cntAt",
                                          "RB1re", "RB1im", "RB1qa", "RB1qq", "RB1cntAt"};
  for (std::size_t i = names.size(); i-- > 0;) {
    choose_radio(names[i]);
    EXPECT_EQ(workbench().graph2_radio_index, static_cast<int>(i));
    const MapChoice choice = MapChoice::of_radio(static_cast<int>(i));
    EXPECT_EQ(widget<QRadioButton>(names[i]).text().toStdString() + ":",
              map_name(window->pages().graph2().drawing()->map, false).substr(5) + ":");
    EXPECT_EQ(choice.range, i / 5);
  }
}

TEST_F(GraphTabs, TheButtonAsksForNyAndShowsTheGrid) {
  start_walk(graph2);
  EXPECT_FALSE(grid("Slg2a").isVisible());
  auto& button = widget<QPushButton>("Button_g2a_ny");
  EXPECT_EQ(button.text(), "set ny:0");
  {
    AnswerInput ny("5");
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(ny.caption, "Input ny");
  }
  EXPECT_EQ(button.text(), "set ny:5");
  EXPECT_TRUE(grid("Slg2a").isVisible());
  settle();
  const auto* drawing = window->pages().graph2().drawing();
  ASSERT_TRUE(drawing != nullptr && drawing->stack);
  EXPECT_EQ(image().image().size(), image().size() * image().devicePixelRatio());
  set("Graph2a_ny", 0);
  EXPECT_FALSE(grid("Slg2a").isVisible());
}

TEST_F(GraphTabs, TheMouseChoosesCurves) {
  start_walk(graph2);
  set("Graph2a_ny", 5);
  settle();
  CurveStates& states = workbench().document.curve_states;
  QImage before = image().image();
  click("Slg2a", {2, 1});
  EXPECT_EQ(states[1], 1);
  settle();
  EXPECT_NE(image().image(), before);
  click("Slg2a", {2, 1});
  EXPECT_EQ(states[1], 0);
  click("Slg2a", {3, 2}, Qt::LeftButton, true);
  EXPECT_EQ(states[2], 2);
  click("Slg2a", {3, 2});
  EXPECT_EQ(states[2], 1);
  before = image().image();
  AnswerInput mode("2");
  click("Slg2a", {4, 1}, Qt::RightButton);
  EXPECT_EQ(mode.caption, "select or unselect all");
  EXPECT_EQ(mode.preset, "1");
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(states[i], 2);
  settle();
  EXPECT_NE(image().image(), before);
}

TEST_F(GraphTabs, EverythingIsReachedByTheTabKey) {
  start_walk(graph1);
  image().setFocus();
  std::vector<QWidget*> reached;
  for (int i = 0; i < 20; ++i) {
    press(Qt::Key_Tab);
    reached.push_back(QApplication::focusWidget());
  }
  for (const char* name : {"CB0qre", "CB1cntAt", "Label_g1_oplot", "Gimage1"}) {
    EXPECT_NE(std::find(reached.begin(), reached.end(), window->findChild<QWidget*>(name)), reached.end())
        << name;
  }
  widget<QCheckBox>("CB0qa").setFocus();
  press(Qt::Key_Space);
  EXPECT_TRUE(workbench().graph1_checked[g1_qa]);
}

TEST_F(GraphTabs, BreakEndsACalculationAndTheInputIsLockedMeanwhile) {
  start_walk(graph1);
  cph().setkmi_1("Graph_EntryCountPerDisplay", 1);
  for (int i = 0; i < 100000; ++i) {
    Lk key;
    key.coo[1] = i;
    lmap().set(key, cotyp(1, 1, 0, 1));
  }
  bool seen = false;
  QObject here;
  QObject::connect(window.get(), &TF1::locked, &here, [&](bool on) {
    if (!on) return;
    QTimer::singleShot(0, &here, [&] {
      seen = true;
      EXPECT_FALSE(image().isEnabled());
      check("CB0qa");
      QTest::mouseClick(window->findChild<QWidget*>("BreakBox")->findChild<QPushButton*>(), Qt::LeftButton);
    });
  });
  check("CB0qim");
  EXPECT_TRUE(seen);
  EXPECT_FALSE(workbench().graph1_checked[g1_qa]);
  settle();
  EXPECT_FALSE(window->pages().graph1().drawn());
  EXPECT_EQ(label(), " Click on checkboxes to draw Sums1 along x");
  EXPECT_TRUE(label_shown());
}

}  // namespace
}  // namespace kov
