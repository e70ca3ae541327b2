#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <fstream>
#include <iterator>
#include <utility>

#include "batch/runner.h"
#include "graphs/qt/graph_image.h"
#include "graphs/qt/picture_size_box.h"
#include "lattice/lattice_status.h"
#include "pages/window_desk.h"
#include "pictures/qt/file_picture_writer.h"
#include "support/string_output.h"
#include "workbench/page_picture.h"

namespace kov {
namespace {

constexpr int graph1 = 6;
constexpr int graph2 = 7;

/// The graph pages in the window, after ten steps of the walk in the plane.
class GraphTabs : public WindowDesk {
 protected:
  void start_walk(int page) {
    start();
    press_ctrl_a();
    choose_tab(page);
    settle();
  }

  GraphImage& image() {
    return *window->findChild<GraphImage*>(shown_tab() == graph1 ? "Gimage1" : "Gimage2");
  }
  /// Until the image has drawn what it was told.
  void settle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return image().is_drawn(); }));
  }
  template <class Widget>
  Widget& widget(const char* name) {
    return *window->findChild<Widget*>(name);
  }
  void check(const char* name) {
    auto& box = widget<QCheckBox>(name);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
  }
  void choose_radio(const char* name) {
    auto& button = widget<QRadioButton>(name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
  }
  std::string label() { return image().findChild<QLabel*>()->text().toStdString(); }
  bool label_shown() { return image().findChild<QLabel*>()->isVisible(); }
  cphclass& cph() { return workbench().document.cph; }
  /// As an edit on the Config page does.
  void set(const char* keyword, int value) {
    cph().setkmi_1(keyword, value);
    workbench().apply_parameter(keyword, window->user().messages);
  }
  void add_point_behind_the_page() {
    Lk key;
    key.coo[0] = workbench().document.lmap.nlast();
    key.coo[1] = 1000;
    lmap().set(key, cotyp(1, 1, 0, 1));
  }

  QAction& item(const char* name) {
    for (QAction* action : image().actions()) {
      if (action->text() == name) return *action;
    }
    throw std::runtime_error(name);
  }
  static void choose_file(QFileDialog& dialog, const char* name) {
    auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
    line->setText(name);
    QTest::keyClick(line, Qt::Key_Return);
  }
  /// Both dialogs of "Save picture".
  void save_picture(const char* name, int width, int height) {
    std::unique_ptr<OnModal<QFileDialog>> file;
    const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
      box.findChild<QSpinBox*>("PictureWidth")->setValue(width);
      box.findChild<QSpinBox*>("PictureHeight")->setValue(height);
      file = std::make_unique<OnModal<QFileDialog>>([&](QFileDialog& dialog) { choose_file(dialog, name); });
      box.accept();
    });
    item("Save picture").trigger();
  }
  QImage picture_of(const std::filesystem::path& file) {
    return QImage(QString::fromStdString(file.string()));
  }
  std::string bytes_of(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// What a script without a window makes of the same walk.
  void run_script(const std::string& lines) {
    std::string output;
    StringOutput text(output);
    FilePictureWriter pictures;
    Runner runner(
        Options{}, text, [](const std::string&) {}, [] { return false; }, &pictures);
    EXPECT_EQ(runner.run(script_lines(
                  "s", "File/Open: walk2d.aa1\nSet Algadd_DefaultStepCount 10\nAlg/DelAndDo Algadd Steps\n" +
                           lines)),
              ExitStatus::success);
  }
};

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

TEST_F(GraphTabs, ThePageShowsWhatAPictureOfItsSizeShows) {
  start_walk(graph1);
  run_script("Draw Graph1 script.png " + std::to_string(image().width()) + "x" +
             std::to_string(image().height()));
  EXPECT_EQ(image().image(), picture_of("script.png"));
}

TEST_F(GraphTabs, ASavedPictureIsThatOfAScript) {
  start_walk(graph1);
  save_picture("saved.png", 640, 480);
  run_script("Draw Graph1 script.png 640x480");
  const QImage saved = picture_of("saved.png");
  EXPECT_EQ(saved.size(), QSize(640, 480));
  EXPECT_EQ(saved, picture_of("script.png"));
  EXPECT_EQ(saved.text("Source").toStdString(), "walk2d.aa1");
  EXPECT_EQ(saved.text("Title").toStdString(), "walk2d.aa1 - Graph1");
}

TEST_F(GraphTabs, ASavedMapIsThatOfAScript) {
  start_walk(graph2);
  save_picture("saved.png", 500, 700);
  run_script("Draw Graph2 script.png 500x700");
  EXPECT_EQ(picture_of("saved.png"), picture_of("script.png"));
}

TEST_F(GraphTabs, SavingKeepsThePageAndTheCurrentFolder) {
  start_walk(graph2);
  set("Graph2_RB_state_saving", 0);
  choose_radio("RB1qq");
  settle();
  const QImage before = image().image();
  std::filesystem::create_directory("sub");
  save_picture("sub/saved.png", 300, 300);
  settle();
  EXPECT_EQ(image().image(), before);
  EXPECT_EQ(workbench().graph2_radio_index, 8);
  EXPECT_TRUE(std::filesystem::exists("sub/saved.png"));
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder()));
}

TEST_F(GraphTabs, ThePictureSizeIsPresetWithThePages) {
  start_walk(graph1);
  const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
    EXPECT_EQ(box.size_of_picture(), image().size());
    EXPECT_EQ(box.windowTitle(), "Save picture");
    EXPECT_EQ(box.findChild<QSpinBox*>("PictureWidth")->maximum(), 16384);
    box.reject();
  });
  item("Save picture").trigger();
}

TEST_F(GraphTabs, TheFileDialogOffersBothFormats) {
  start_walk(graph1);
  std::unique_ptr<OnModal<QFileDialog>> file;
  const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
    file = std::make_unique<OnModal<QFileDialog>>([](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Save picture");
      EXPECT_EQ(dialog.nameFilters(), (QStringList{"PNG picture (*.png)", "SVG picture (*.svg)"}));
      EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "walk2d-Graph1");
      dialog.selectNameFilter("SVG picture (*.svg)");
      emit dialog.filterSelected("SVG picture (*.svg)");
      choose_file(dialog, "walk");
    });
    box.accept();
  });
  item("Save picture").trigger();
  EXPECT_NE(bytes_of("walk.svg").find("<title>walk2d.aa1 - Graph1</title>"), std::string::npos);
}

TEST_F(GraphTabs, APictureThatCannotBeSavedIsReported) {
  start_walk(graph1);
  std::unique_ptr<CloseMessage> message;
  std::unique_ptr<OnModal<QFileDialog>> file;
  const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
    file = std::make_unique<OnModal<QFileDialog>>([&](QFileDialog& dialog) {
      message = std::make_unique<CloseMessage>();
      choose_file(dialog, "walk.gif");
    });
    box.accept();
  });
  item("Save picture").trigger();
  EXPECT_NE(message->text.find("walk.gif:\nThe name of a picture ends in .png or .svg"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists("walk.gif"));
}

TEST_F(GraphTabs, CurvesAreSavedAsATable) {
  start_walk(graph1);
  const OnModal<QFileDialog> file([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{"Comma-separated values (*.csv)"});
    EXPECT_EQ(dialog.windowTitle(), "Save curves as CSV");
    choose_file(dialog, "walk");
  });
  item("Save curves as CSV").trigger();
  const std::string text = bytes_of("walk.csv");
  EXPECT_EQ(text, csv_text(window->pages().graph1().table()));
  EXPECT_EQ(text.substr(0, 13), "k1,SR1: qre\r\n");
}

TEST_F(GraphTabs, ATableThatCannotBeSavedIsReported) {
  start_walk(graph2);
  std::filesystem::create_directory("full.csv");
  std::unique_ptr<CloseMessage> message;
  const OnModal<QFileDialog> file([&](QFileDialog& dialog) {
    message = std::make_unique<CloseMessage>();
    choose_file(dialog, "missing/walk.csv");
    if (dialog.isVisible()) dialog.reject();
  });
  item("Save curves as CSV").trigger();
  EXPECT_FALSE(message->text.empty());
}

TEST_F(GraphTabs, CtrlCCopiesThePicture) {
  start_walk(graph1);
  image().setFocus();
  press(Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  ASSERT_TRUE(copied->hasImage());
  EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()), image().image());
  EXPECT_TRUE(copied->data("image/svg+xml").contains("<title>walk2d.aa1 - Graph1</title>"));
}

TEST_F(GraphTabs, TheMenuOpensByTheRightButtonAndTheMenuKey) {
  start_walk(graph2);
  EXPECT_EQ(image().contextMenuPolicy(), Qt::ActionsContextMenu);
  const auto open_by = [&](QContextMenuEvent::Reason reason) {
    std::vector<std::string> items;
    QTimer::singleShot(0, window.get(), [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      for (const QAction* entry : menu->actions()) items.push_back(entry->text().toStdString());
      menu->close();
    });
    QContextMenuEvent event(reason, {20, 20}, image().mapToGlobal(QPoint(20, 20)));
    QApplication::sendEvent(&image(), &event);
    return items;
  };
  const std::vector<std::string> expected = {"Save picture", "Copy picture", "Save curves as CSV"};
  EXPECT_EQ(open_by(QContextMenuEvent::Mouse), expected);
  EXPECT_EQ(open_by(QContextMenuEvent::Keyboard), expected);
}

TEST_F(GraphTabs, NothingIsTakenFromAnEmptyPage) {
  start_walk(graph1);
  EXPECT_TRUE(item("Save picture").isEnabled());
  check("CB0qre");
  settle();
  EXPECT_EQ(label(), " cnt=0");
  EXPECT_TRUE(label_shown());
  for (const QAction* action : image().actions()) EXPECT_FALSE(action->isEnabled());
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

TEST_F(GraphTabs, NoDrawingBehindADialog) {
  start_walk(graph1);
  const QSize before = image().image().size();
  const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
    window->resize(window->width() + 50, window->height());
    QTest::qWait(3 * GraphImage::rest_in_ms);
    EXPECT_EQ(image().image().size(), before);
    box.reject();
  });
  item("Save picture").trigger();
  settle();
  EXPECT_EQ(image().image().width(), image().width());
}

}  // namespace
}  // namespace kov
