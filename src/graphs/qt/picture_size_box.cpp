#include "graphs/qt/picture_size_box.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

#include "pictures/picture.h"

namespace kov {
namespace {

QSpinBox* make_side(const char* name, int preset) {
  auto* side = new QSpinBox;
  side->setObjectName(name);
  side->setRange(1, largest_picture_side);
  side->setSuffix(QStringLiteral(" pixels"));
  side->setValue(preset);
  return side;
}

}  // namespace

PictureSizeBox::PictureSizeBox(QWidget* parent, QSize preset)
    : QDialog(parent),
      width_(make_side("PictureWidth", preset.width())),
      height_(make_side("PictureHeight", preset.height())) {
  setWindowTitle(QStringLiteral("Save picture"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QFormLayout(this);
  layout->addRow(QStringLiteral("&Width:"), width_);
  layout->addRow(QStringLiteral("&Height:"), height_);
  layout->addRow(buttons);
  width_->selectAll();
}

QSize PictureSizeBox::size_of_picture() const { return {width_->value(), height_->value()}; }

std::optional<QSize> ask_picture_size(QWidget* parent, QSize preset) {
  PictureSizeBox box(parent, preset);
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return box.size_of_picture();
}

}  // namespace kov
