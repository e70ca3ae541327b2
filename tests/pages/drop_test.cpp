// Files that are dropped on the window.
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPlainTextEdit>

#include "pages/during_operation.h"
#include "pages/window_desk.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

class Drop : public WindowDesk {
 protected:
  QMimeData data;

  QUrl url(const char* name) { return QUrl::fromLocalFile(to_qt((folder() / name).string())); }
  bool enters(QWidget& target) {
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&target, &enter);
    return enter.isAccepted();
  }
  void drop_on(QWidget& target) {
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
  }
  /// What a file that is dropped on an editor does: it is opened and leaves the editor's text alone.
  void expect_opened() {
    QTRY_VERIFY_WITH_TIMEOUT(workbench().file.chosen, 5000);
    EXPECT_EQ(workbench().file.name(), "walk2d.aa1");
  }
};

TEST_F(Drop, OnTheCommentOpensTheFile) {
  start({});
  choose_tab(2);
  auto* editor = window->findChild<QPlainTextEdit*>("Comment");
  editor->setPlainText("before");
  data.setUrls({url("walk2d.aa1")});
  data.setText("walk2d.aa1");  // a file manager offers the name, too
  ASSERT_TRUE(enters(*editor->viewport()));
  drop_on(*editor->viewport());
  EXPECT_EQ(editor->toPlainText(), "before");
  expect_opened();
  EXPECT_TRUE(editor->toPlainText().startsWith("A walk in the plane"));
}

TEST_F(Drop, OfATextOnTheCommentInsertsIt) {
  start({});
  choose_tab(2);
  auto* editor = window->findChild<QPlainTextEdit*>("Comment");
  data.setText("a word");
  ASSERT_TRUE(enters(*editor->viewport()));
  drop_on(*editor->viewport());
  EXPECT_EQ(editor->toPlainText(), "a word");
}

TEST_F(Drop, OnTheOpenEditorOfACellOpensTheFile) {
  start({});
  click("Slq", {3, 3});
  auto* editor = grid("Slq").viewport()->findChild<QLineEdit*>();
  ASSERT_TRUE(editor->isVisible());
  data.setUrls({url("walk2d.aa1")});
  ASSERT_TRUE(enters(*editor));
  drop_on(*editor);
  expect_opened();
}

TEST_F(Drop, OfSeveralFilesIsRefused) {
  start({});
  std::filesystem::copy_file("walk2d.aa1", "b.aa1");
  data.setUrls({url("walk2d.aa1"), url("b.aa1")});
  EXPECT_FALSE(enters(*window));
  drop_on(*window);
  QTest::qWait(20);
  EXPECT_FALSE(workbench().file.chosen);
}

TEST_F(Drop, DuringALongOperationIsRefused) {
  start({});
  data.setUrls({url("walk2d.aa1")});
  bool refused = false;
  const DuringOperation during(*window, [&] {
    refused = !enters(*window);
    drop_on(*window);
  });
  window->run_own("Mine", [this, &refused] { work_until(refused); });
  EXPECT_TRUE(refused);
  QTest::qWait(20);
  EXPECT_FALSE(workbench().file.chosen);
}

}  // namespace
}  // namespace kov
