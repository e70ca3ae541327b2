#pragma once

#include <QDialog>
#include <functional>

#include "interact/questions.h"

class QLineEdit;

namespace kov {

/// A prompt of any number of lines above a line of text. OK closes it only with a text that is accepted.
class InputBox final : public QDialog {
 public:
  InputBox(QWidget* parent, const InputDialog& dialog, Questions::Accept accepts, std::function<void()> beep);

  std::string text() const;
  void accept() override;

 private:
  QLineEdit* line_;
  Questions::Accept accepts_;
  std::function<void()> beep_;
};

}  // namespace kov
