#include "datafile/qt/comment_tab.h"

#include <QFontDatabase>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "datafile/qt/comment_text.h"
#include "widgets/menu_keys.h"

namespace kov {
namespace {

/// A file that is dropped is to be opened by the window, not to be named in the comment.
class CommentEdit final : public QPlainTextEdit {
 protected:
  bool canInsertFromMimeData(const QMimeData* source) const override {
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
  }
};

}  // namespace

CommentTab::CommentTab(std::string& comment, QWidget* parent)
    : QWidget(parent), comment_(comment), editor_(new CommentEdit) {
  editor_->setObjectName("Comment");
  editor_->setAccessibleName(tr("Comment"));
  editor_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  editor_->setPlaceholderText(tr("What the lattices of this file are about"));
  give_keys_to_menus(*editor_);
  connect(editor_, &QPlainTextEdit::textChanged, this, &CommentTab::take_text);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(editor_);
  setFocusProxy(editor_);
  follow();
}

void CommentTab::take_text() {
  comment_ = comment_of(editor_->toPlainText());
  shown_ = comment_;
}

void CommentTab::follow() {
  if (comment_ == shown_) return;
  const QSignalBlocker blocker(editor_);
  editor_->setPlainText(editor_text_of(comment_));
  shown_ = comment_;
}

}  // namespace kov
