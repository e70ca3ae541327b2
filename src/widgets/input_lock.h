#pragma once

#include <QObject>

class QWidget;

namespace kov {

/// While it lives, keys, mouse, drops and the closing of windows reach nothing but one widget and what is
/// inside it; painting, resizing and timers go on. For the moments in which a long operation lets the
/// window react: whatever it would start would meet the operation half-way.
class InputLock final : public QObject {
 public:
  explicit InputLock(const QWidget& open_to);
  ~InputLock() override;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool is_open_to(const QObject* object) const;

  const QWidget& open_to_;
};

}  // namespace kov
