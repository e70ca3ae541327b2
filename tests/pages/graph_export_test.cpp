#include <QClipboard>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <fstream>
#include <iterator>
#include <string>

#include "batch/runner.h"
#include "graphs/qt/picture_size_box.h"
#include "pages/graph_desk.h"
#include "pictures/qt/file_picture_writer.h"
#include "support/string_output.h"

namespace kov {
namespace {

/// Taking pictures and tables away by the menu of the image.
class GraphExports : public GraphDesk {
 protected:
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

  /// The image shows what a script draws in its size after these lines.
  void expect_page_as_drawn(const std::string& graph, const std::string& lines) {
    run_script(lines + "Draw " + graph + " script.png " + std::to_string(image().width()) + "x" +
               std::to_string(image().height()));
    EXPECT_FALSE(image().image().isNull());
    EXPECT_EQ(image().image(), picture_of("script.png")) << lines;
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

TEST_F(GraphExports, ThePageShowsWhatAPictureOfItsSizeShows) {
  start_walk(graph1);
  expect_page_as_drawn("Graph1", "");
}

TEST_F(GraphExports, SoDoTwoCurvesAgainstEachOther) {
  start_walk(graph1);
  check("CB0qq");
  QTest::mouseClick(&widget<QPushButton>("Label_g1_oplot"), Qt::LeftButton);
  settle();
  expect_page_as_drawn("Graph1", "Check CB0qq on\nGraph1/Label_g1_oplot\n");
}

TEST_F(GraphExports, SoDoesAMapInEveryColourMode) {
  start_walk(graph2);
  choose_radio("RB0cntAt");
  for (const char* mode : {"0", "1", "2", "3"}) {
    set("Graph2_color_mode", std::stoi(mode));
    settle();
    expect_page_as_drawn("Graph2", "Radio Graph2 4\nSet Graph2_color_mode " + std::string(mode) + "\n");
  }
}

TEST_F(GraphExports, SoDoesAStackOfCurvesFromEitherEnd) {
  start_walk(graph2);
  // States outlast a change to a negative ny, so the script goes the same way.
  std::string lines;
  for (const char* ny : {"5", "-5"}) {
    set("Graph2a_ny", std::stoi(ny));
    click("Slg2a", {3, 2}, Qt::LeftButton, true);
    settle();
    lines += "Graph2/Button_g2a_ny: " + std::string(ny) + "\nClick Slg2a 3,2 double\n";
    expect_page_as_drawn("Graph2", lines);
  }
}

TEST_F(GraphExports, ASavedPictureIsThatOfAScript) {
  start_walk(graph1);
  save_picture("saved.png", 640, 480);
  run_script("Draw Graph1 script.png 640x480");
  const QImage saved = picture_of("saved.png");
  EXPECT_EQ(saved.size(), QSize(640, 480));
  EXPECT_EQ(saved, picture_of("script.png"));
  EXPECT_EQ(saved.text("Source").toStdString(), "walk2d.aa1");
  EXPECT_EQ(saved.text("Title").toStdString(), "walk2d.aa1 - Graph1");
}

TEST_F(GraphExports, ASavedMapIsThatOfAScript) {
  start_walk(graph2);
  save_picture("saved.png", 500, 700);
  run_script("Draw Graph2 script.png 500x700");
  EXPECT_EQ(picture_of("saved.png"), picture_of("script.png"));
}

TEST_F(GraphExports, ASavedStackIsThatOfAScript) {
  start_walk(graph2);
  set("Graph2a_ny", -4);
  settle();
  save_picture("saved.png", 640, 480);
  run_script("Graph2/Button_g2a_ny: -4\nDraw Graph2 script.png 640x480");
  EXPECT_EQ(picture_of("saved.png"), picture_of("script.png"));
}

TEST_F(GraphExports, SavingKeepsThePageAndTheCurrentFolder) {
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

TEST_F(GraphExports, ThePictureSizeIsPresetWithThePages) {
  start_walk(graph1);
  const OnModal<PictureSizeBox> size([&](PictureSizeBox& box) {
    EXPECT_EQ(box.size_of_picture(), image().size());
    EXPECT_EQ(box.windowTitle(), "Save picture");
    EXPECT_EQ(box.findChild<QSpinBox*>("PictureWidth")->maximum(), largest_picture_side);
    box.reject();
  });
  item("Save picture").trigger();
}

TEST_F(GraphExports, TheFileDialogOffersBothFormats) {
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

TEST_F(GraphExports, APictureThatCannotBeSavedIsReported) {
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

TEST_F(GraphExports, CurvesAreSavedAsATable) {
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

TEST_F(GraphExports, ATableThatCannotBeSavedIsReported) {
  start_walk(graph2);
  std::unique_ptr<CloseMessage> message;
  const OnModal<QFileDialog> file([&](QFileDialog& dialog) {
    message = std::make_unique<CloseMessage>();
    choose_file(dialog, "missing/walk.csv");
  });
  item("Save curves as CSV").trigger();
  EXPECT_NE(message->text.find("Cannot save "), std::string::npos) << message->text;
}

TEST_F(GraphExports, CtrlCCopiesThePicture) {
  start_walk(graph1);
  image().setFocus();
  press(Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  ASSERT_TRUE(copied->hasImage());
  EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()), image().image());
  EXPECT_TRUE(copied->data("image/svg+xml").contains("<title>walk2d.aa1 - Graph1</title>"));
}

TEST_F(GraphExports, TheMenuOpensByTheRightButtonAndTheMenuKey) {
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

TEST_F(GraphExports, NothingIsTakenFromAnEmptyPage) {
  start_walk(graph1);
  EXPECT_TRUE(item("Save picture").isEnabled());
  check("CB0qre");
  settle();
  EXPECT_EQ(label(), " cnt=0");
  EXPECT_TRUE(label_shown());
  for (const QAction* action : image().actions()) EXPECT_FALSE(action->isEnabled());
}

TEST_F(GraphExports, NoDrawingBehindADialog) {
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
