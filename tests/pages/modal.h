#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>
#include <utility>

namespace kov {

/// Acts on the next modal box, as soon as there is one. A box that never comes, or that is of another type,
/// is a failure, and so is one that stays open behind the action.
template <class Box>
class OnModal {
 public:
  explicit OnModal(std::function<void(Box&)> act) : act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(5);
  }
  ~OnModal() { EXPECT_TRUE(acted_) << "no modal box"; }
  OnModal(const OnModal&) = delete;
  OnModal& operator=(const OnModal&) = delete;

 private:
  void look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    timer_.stop();
    auto* box = dynamic_cast<Box*>(modal);
    EXPECT_NE(box, nullptr) << "another kind of box";
    acted_ = true;
    if (box != nullptr) act_(*box);
    if (QApplication::activeModalWidget() == modal && modal->isVisible()) {
      ADD_FAILURE() << "the box is still open";
      modal->close();
    }
  }

  std::function<void(Box&)> act_;
  QTimer timer_;
  bool acted_ = false;
};

}  // namespace kov
