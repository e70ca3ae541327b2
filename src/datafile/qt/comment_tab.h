#pragma once

#include <QWidget>
#include <string>

#include "datafile/qt/comment_text.h"

class QPlainTextEdit;

namespace kov {

/// The Comment page: a plain text editor over the comment of the document, which follows every keystroke.
class CommentTab final : public QWidget {
 public:
  /// The comment must outlive the page.
  explicit CommentTab(std::string& comment, QWidget* parent = nullptr);

  /// The comment may have been changed elsewhere, by a file that was read. What the editor shows already
  /// stays, with its cursor and what can be undone.
  void follow();

 private:
  void take_text();

  std::string& comment_;
  /// What the editor shows.
  std::string shown_;
  /// Of the comment as it was when the editor took it: what is typed leaves the other bytes as they were.
  CommentEncoding encoding_ = CommentEncoding::utf8;
  QPlainTextEdit* editor_;
};

}  // namespace kov
