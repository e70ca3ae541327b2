#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <utility>

#include "app/kovu1.h"

namespace kov {

/// Acts once while an operation shows itself, from the event loop that it lets run.
class DuringOperation : public QObject {
 public:
  DuringOperation(TF1& window, std::function<void()> act) {
    connect(&window, &TF1::locked, this, [this, act = std::move(act)](bool on) {
      if (on) QTimer::singleShot(0, this, act);
    });
  }
};

}  // namespace kov
