#pragma once

#include <QApplication>

namespace kov {

/// The application object. What escapes from a key or a click (memory that runs out while a grid stores a
/// cell, say) ends what it has begun and not the program: the error is shown, and the window goes on.
class Application final : public QApplication {
 public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  /// While the box is shown that tells of an error: what it meets itself is not shown again.
  bool reporting_ = false;
};

}  // namespace kov
