#include "widgets/input_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <utility>

#include "widgets/qt_text.h"

namespace kov {

InputBox::InputBox(QWidget* parent, const InputDialog& dialog, Questions::Accept accepts,
                   std::function<void()> beep)
    : QDialog(parent), accepts_(std::move(accepts)), beep_(std::move(beep)) {
  setWindowTitle(to_qt(dialog.caption));
  auto* prompt = new QLabel(to_qt(dialog.prompt));
  prompt->setTextFormat(Qt::PlainText);
  line_ = new QLineEdit(to_qt(dialog.preset));
  line_->setAccessibleName(to_qt(dialog.prompt));
  line_->selectAll();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &InputBox::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &InputBox::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(prompt);
  layout->addWidget(line_);
  layout->addWidget(buttons);
  line_->setFocus();
}

std::string InputBox::text() const { return from_qt(line_->text()); }

void InputBox::accept() {
  if (accepts_(text())) return QDialog::accept();
  beep_();
  line_->selectAll();
  line_->setFocus();
}

}  // namespace kov
