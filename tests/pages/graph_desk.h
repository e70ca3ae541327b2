#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <stdexcept>

#include "batch/runner.h"
#include "graphs/qt/graph_image.h"
#include "pages/window_desk.h"
#include "support/string_output.h"

namespace kov {

inline constexpr int graph1 = 6;
inline constexpr int graph2 = 7;

/// The graph pages in the window, after ten steps of the walk in the plane.
class GraphDesk : public WindowDesk {
 protected:
  void start_walk(int page) {
    start();
    press_ctrl_a();
    choose_tab(page);
    settle();
  }

  /// Three steps of the walk in a file that opens at this page and reports every point.
  static void save_walk_that_opens_at(int page) {
    std::string output;
    StringOutput text(output);
    Runner runner(
        Options{}, text, [](const std::string&) {}, [] { return false; });
    const std::string lines =
        "File/Open: walk2d.aa1\nAlg/Start Algadd: 3\nSet Graph_EntryCountPerDisplay 1\n"
        "Set F1_Initial_Active_Page " +
        std::to_string(page) + "\nFile/Save as: opens.aa1";
    ASSERT_EQ(runner.run(script_lines("s", lines)), ExitStatus::success);
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
};

}  // namespace kov
