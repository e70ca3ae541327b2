#include "datafile/qt/comment_tab.h"

#include <QFontDatabase>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QVBoxLayout>

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

/// What toPlainText gives, but that it makes blanks of no-break spaces.
QString text_of(const QTextDocument& document) {
  QString text = document.toRawText();
  text.replace(QChar::ParagraphSeparator, '\n');
  text.replace(QChar::LineSeparator, '\n');
  return text;
}

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
  comment_ = comment_of(text_of(*editor_->document()), encoding_);
  shown_ = comment_;
}

void CommentTab::follow() {
  if (comment_ == shown_) return;
  const QSignalBlocker blocker(editor_);
  encoding_ = encoding_of(comment_);
  editor_->setPlainText(editor_text_of(comment_));
  shown_ = comment_;
}

}  // namespace kov
