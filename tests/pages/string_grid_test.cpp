#include "widgets/string_grid.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QElapsedTimer>
#include <QImage>
#include <QToolTip>

#include "pages/grid_desk.h"
#include "widgets/cell_painter.h"

namespace kov {
namespace {

class StringGridTest : public GridDesk {
 protected:
  QAbstractButton* corner() const {
    return grid->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
  }
};

TEST_F(StringGridTest, ShowsTheCellsBehindTheHeadings) {
  open();
  EXPECT_EQ(grid->model()->rowCount(), 7);
  EXPECT_EQ(grid->model()->columnCount(), 5);
  EXPECT_EQ(index({1, 1}).data().toString(), "101");
  EXPECT_EQ(index({5, 7}).data().toString(), "507");
  EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal).toString(), "c1");
  EXPECT_EQ(grid->model()->headerData(6, Qt::Vertical).toString(), "7");
}

TEST_F(StringGridTest, HasNoHeadingRowWhereTheModelHasNone) {
  model.heading_rows = 0;
  open();
  EXPECT_TRUE(grid->horizontalHeader()->isHidden());
  EXPECT_EQ(grid->model()->rowCount(), 8);
  EXPECT_EQ(index({1, 0}).data().toString(), "100");
  click({1, 0});
  EXPECT_EQ(model.selected(), (GridCell{1, 0}));
}

TEST_F(StringGridTest, PaintsTheCornersText) {
  open();
  const QImage with_text = corner()->grab().toImage();
  model.asked.clear();
  corner()->grab();
  EXPECT_EQ(model.asked, (std::vector<GridCell>{{0, 0}}));
  model.heading_rows = 0;  // then the text of cell 0,0 is another one
  EXPECT_NE(corner()->grab().toImage(), with_text);
}

TEST_F(StringGridTest, TheCornerIsGreyWithTheGrid) {
  open();
  const QImage enabled = corner()->grab().toImage();
  grid->setEnabled(false);
  const QImage disabled = corner()->grab().toImage();
  EXPECT_NE(disabled, enabled);
  grid->setEnabled(true);
  grid->setFocus();
  EXPECT_EQ(corner()->grab().toImage(), enabled);
}

TEST_F(StringGridTest, AHeadingStandsAboveItsNumbers) {
  open();
  const QStyle& style = *grid->horizontalHeader()->style();
  EXPECT_EQ(style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, grid->horizontalHeader()), cell_margin);
  EXPECT_EQ(grid->verticalHeader()->style(), &style);
  EXPECT_GE(grid->horizontalHeader()->height(), grid->fontMetrics().height() + 2 * cell_margin);
}

TEST_F(StringGridTest, AColumnIsAsWideAsItsTextInTheFittedRow) {
  open();
  const int usual = grid->columnWidth(0);
  const QString wide = "1234567890/1234567890";
  model.typed[{1, 3}] = wide.toStdString();
  model.typed[{2, 4}] = wide.toStdString();
  grid->set_fitted_row(3);
  EXPECT_GT(grid->columnWidth(0), grid->fontMetrics().horizontalAdvance(wide) + 2 * cell_margin);
  EXPECT_EQ(grid->columnWidth(1), usual);
  model.typed[{1, 3}] = "1";
  model.changed();
  EXPECT_EQ(grid->columnWidth(0), usual);
}

TEST_F(StringGridTest, TakesItsWidthsFromTheModel) {
  open();
  const double scale = grid->logicalDpiX() / 96.0;
  EXPECT_EQ(grid->columnWidth(0), qRound(50 * scale));
  EXPECT_EQ(grid->columnWidth(4), qRound(100 * scale));
  model.width = 80;
  model.changed();
  EXPECT_EQ(grid->columnWidth(0), qRound(80 * scale));
  EXPECT_EQ(grid->columnWidth(4), qRound(160 * scale));
  EXPECT_GE(grid->verticalHeader()->width(), qRound(80 * scale));
}

TEST_F(StringGridTest, KeepsAColumnThatWasMadeWider) {
  open();
  grid->setColumnWidth(1, 133);
  model.changed();
  EXPECT_EQ(grid->columnWidth(1), 133);
}

TEST_F(StringGridTest, AWideColumnStaysWhereRowsComeAndOtherTextsGrow) {
  open();
  grid->set_fitted_row(3);
  grid->setColumnWidth(1, 133);
  model.rows = 30;
  model.changed();
  EXPECT_EQ(grid->columnWidth(1), 133);
  const int usual = grid->columnWidth(0);
  model.typed[{1, 3}] = "1234567890/1234567890";
  model.changed();
  EXPECT_GT(grid->columnWidth(0), usual);
  EXPECT_EQ(grid->columnWidth(1), 133);
  model.columns = 8;
  model.changed();
  EXPECT_EQ(grid->columnWidth(1), 133);
  EXPECT_EQ(grid->columnWidth(6), usual);
  model.width = 60;
  model.changed();
  EXPECT_EQ(grid->columnWidth(1), grid->columnWidth(2));
}

TEST_F(StringGridTest, EveryIntegerIsAWidth) {
  open();
  for (const int width : {highest_int, 1'000'000'000, 2'000'000}) {
    model.width = width;
    model.changed();
    EXPECT_EQ(grid->columnWidth(0), grid->horizontalHeader()->maximumSectionSize()) << width;
    EXPECT_LT(grid->verticalHeader()->width(), grid->width()) << width;
  }
  for (const int width : {0, -1, lowest_int}) {
    model.width = width;
    model.changed();
    EXPECT_EQ(grid->columnWidth(0), 1) << width;
    EXPECT_GT(grid->verticalHeader()->width(), grid->fontMetrics().horizontalAdvance("7")) << width;
  }
}

TEST_F(StringGridTest, FollowsTheCountsOfTheModel) {
  open();
  grid->setCurrentIndex(index({2, 2}));
  model.columns = 9;
  model.rows = 30;
  model.changed();
  EXPECT_EQ(grid->model()->rowCount(), 29);
  EXPECT_EQ(grid->model()->columnCount(), 8);
  EXPECT_EQ(current(), (GridCell{2, 2}));
  EXPECT_EQ(model.selected(), (GridCell{2, 2}));
}

TEST_F(StringGridTest, CellsThatAreGoneAreEmpty) {
  open();
  const QModelIndex last = index({5, 7});
  model.rows = 3;
  EXPECT_EQ(last.data().toString(), "");
}

TEST_F(StringGridTest, AlignsNumbersRightAndTextsLeft) {
  model.typed[{1, 2}] = "word";
  open();
  const auto side = [&](GridCell cell) { return index(cell).data(Qt::TextAlignmentRole).toInt(); };
  EXPECT_EQ(side({1, 1}), int(Qt::AlignRight | Qt::AlignVCenter));
  EXPECT_EQ(side({1, 2}), int(Qt::AlignLeft | Qt::AlignVCenter));
  EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignRight | Qt::AlignVCenter));
}

TEST_F(StringGridTest, CursorKeysMoveBothSelections) {
  open();
  press(Qt::Key_Right);
  press(Qt::Key_Down);
  EXPECT_EQ(current(), (GridCell{2, 2}));
  EXPECT_EQ(model.selected(), (GridCell{2, 2}));
  EXPECT_EQ(model.events, (Events{"key Down"}));
  press(Qt::Key_PageDown);
  EXPECT_EQ(model.events.back(), "key PageDown");
  EXPECT_EQ(model.selected(), (GridCell{2, 7}));
  press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(model.events.back(), "key FirstPage");
  EXPECT_EQ(model.selected(), (GridCell{2, 1}));
}

TEST_F(StringGridTest, TabWrapsIntoTheNextRowAndLeavesAtTheEnd) {
  open();
  grid->setCurrentIndex(index({5, 1}));
  press(Qt::Key_Tab);
  EXPECT_EQ(model.selected(), (GridCell{1, 2}));
  EXPECT_EQ(model.events, (Events{"key Tab"}));
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(model.selected(), (GridCell{5, 1}));
  grid->setCurrentIndex(index({5, 7}));
  press(Qt::Key_Tab);
  EXPECT_EQ(model.selected(), (GridCell{5, 7}));
  EXPECT_EQ(QApplication::focusWidget(), neighbour);
}

TEST_F(StringGridTest, FollowsAMoveOfTheModel) {
  open();
  type("G");
  EXPECT_EQ(current(), (GridCell{5, 7}));
  model.move_to({3, 3});
  EXPECT_EQ(current(), (GridCell{3, 3}));
}

TEST_F(StringGridTest, FollowsOnlyWhenTheModelIsDone) {
  open();
  GridCell seen;
  model.during_key = [&] {
    model.move_to({3, 3});
    seen = current();
  };
  type("P");
  EXPECT_EQ(seen, (GridCell{1, 1}));
  EXPECT_EQ(current(), (GridCell{3, 3}));
}

TEST_F(StringGridTest, ClicksReachTheModelBehindTheSelection) {
  open();
  click({2, 3});
  click({3, 2}, Qt::RightButton);
  EXPECT_EQ(model.events, (Events{"left 2,3", "right 3,2"}));
  EXPECT_EQ(current(), (GridCell{3, 2}));
  model.events.clear();
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, place({1, 4}));
  EXPECT_EQ(model.events.back(), "double 1,4");
  EXPECT_EQ(model.selected(), (GridCell{1, 4}));
}

TEST_F(StringGridTest, HeadingsPassClicksOnAndAreNeverSelected) {
  open();
  grid->setCurrentIndex(index({2, 2}));
  QTest::mouseClick(grid->horizontalHeader()->viewport(), Qt::RightButton);
  QTest::mouseDClick(grid->verticalHeader()->viewport(), Qt::LeftButton);
  QTest::mouseClick(corner(), Qt::RightButton);
  EXPECT_EQ(model.events, (Events{"right 2,2", "double 2,2", "right 2,2"}));
  EXPECT_EQ(model.selected(), (GridCell{2, 2}));
}

TEST_F(StringGridTest, CopiesARectangle) {
  open();
  grid->setCurrentIndex(index({2, 2}));
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "202");
  press(Qt::Key_Right, Qt::ShiftModifier);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "202\t302\n203\t303");
  click({1, 1});
  click({2, 4}, Qt::LeftButton, Qt::ShiftModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), "101\t201\n102\t202\n103\t203\n104\t204");
}

TEST_F(StringGridTest, ShowsToolTips) {
  model.typed[{1, 1}] = "a text that is much too long for its cell";
  open();
  const auto rest_on = [&](QWidget* target, QPoint at) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, at, target->mapToGlobal(at));
    QApplication::sendEvent(target, &event);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
  };
  EXPECT_EQ(rest_on(grid->viewport(), place({1, 1})), "a text that is much too long for its cell");
  grid->set_tool_tip([](GridCell cell) { return QStringLiteral("%1/%2").arg(cell.column).arg(cell.row); });
  EXPECT_EQ(rest_on(grid->viewport(), place({2, 3})), "2/3");
  EXPECT_EQ(rest_on(corner(), {1, 1}), "0/0");
  EXPECT_EQ(rest_on(grid->horizontalHeader()->viewport(), {1, 1}), "1/0");
  EXPECT_EQ(rest_on(grid->verticalHeader()->viewport(), {1, 1}), "0/1");
}

TEST_F(StringGridTest, TellsHowManyRowsAreInView) {
  open();
  int told = 0;
  QObject::connect(grid, &StringGrid::rows_in_view_changed, [&](int rows) { told = rows; });
  window.resize(700, 650);
  QApplication::processEvents();
  EXPECT_EQ(told, grid->rows_in_view());
  EXPECT_EQ(told, grid->viewport()->height() / grid->rowHeight(0));
}

TEST_F(StringGridTest, AnotherFontIsAnotherNumberOfRowsInView) {
  model.heading_rows = 0;  // whose height would change the view's
  open();
  int told = 0;
  QObject::connect(grid, &StringGrid::rows_in_view_changed, [&](int rows) { told = rows; });
  const int before = grid->rows_in_view();
  QFont larger = grid->font();
  larger.setPointSize(3 * larger.pointSize());
  grid->setFont(larger);
  EXPECT_LT(told, before);
  EXPECT_EQ(told, grid->rows_in_view());
}

TEST_F(StringGridTest, AsksForWhatIsInViewOnly) {
  model.columns = 1001;
  model.rows = 2001;
  QElapsedTimer clock;
  clock.start();
  open();
  QApplication::processEvents();
  grid->grab();
  qDebug() << "1000 x 2000 cells opened and painted in" << clock.elapsed() << "ms";
  EXPECT_LT(model.asked.size(), 5000u);
  for (const GridCell& cell : model.asked) {
    if (cell.column == 0 || cell.row == 0) continue;  // of the headings, Qt measures those at both ends
    EXPECT_LT(cell.row, 100);
    EXPECT_LT(cell.column, 100);
  }
  model.asked.clear();
  model.changed();
  QApplication::processEvents();
  EXPECT_FALSE(model.asked.empty());
  EXPECT_LT(model.asked.size(), 5000u);
}

TEST_F(StringGridTest, ModelsMayOutliveIt) {
  open();
  delete grid;
  model.changed();
  SUCCEED();
}

}  // namespace
}  // namespace kov
