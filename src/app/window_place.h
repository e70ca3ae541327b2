#pragma once

#include <QList>
#include <QRect>

#include "config/cphclass.h"
#include "config/window_facts.h"

class QWidget;

namespace kov {

/// Place and size of a window that was asked for, moved and cut so that it can be seen: at least
/// smallest, as a whole on the screen of which it covers most, on the first one if it covers none.
QRect on_screen(const QRect& wanted, const QSize& smallest, const QList<QRect>& screens);

/// Keeps the main window and the F1_Screen parameters together: a value that is read or edited moves the
/// window, and a window that a person moves or resizes sets the values, so that a saved configuration
/// records where it stood.
class WindowPlace {
 public:
  /// All must outlive it. facts is where the catalogue takes its defaults from.
  WindowPlace(QWidget& window, cphclass& cph, WindowFacts& facts)
      : window_(window), cph_(cph), facts_(facts) {}

  /// Place and size before there are any values: centred, with room for the pages.
  static QRect initial(const QList<QRect>& screens);

  /// The window goes where the parameters say, if they have changed.
  void follow_parameters();
  /// The window was moved or resized. A window that fills the screen, or none, has no place of its own.
  void record();

 private:
  QRect wanted() const;

  QWidget& window_;
  cphclass& cph_;
  WindowFacts& facts_;
  /// As the parameters were last seen or set.
  QRect known_;
};

/// The screens' areas that are free for windows, the main one first.
QList<QRect> available_screens();

WindowFacts facts_of(const QRect& place);

}  // namespace kov
