#pragma once

#include <QDialog>
#include <QSize>
#include <optional>

class QSpinBox;

namespace kov {

/// Asks how large a picture is to be, in pixels.
class PictureSizeBox final : public QDialog {
 public:
  PictureSizeBox(QWidget* parent, QSize preset);

  /// Both at least 1 and at most largest_picture_side.
  QSize size_of_picture() const;

 private:
  QSpinBox* width_;
  QSpinBox* height_;
};

/// Nothing when cancelled.
std::optional<QSize> ask_picture_size(QWidget* parent, QSize preset);

}  // namespace kov
