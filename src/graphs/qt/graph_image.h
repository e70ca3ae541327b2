#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "graphs/qt/shown_graph.h"
#include "interact/messages.h"
#include "pictures/qt/picture_font.h"

class QLabel;

namespace kov {

/// The image of a graph page. It paints from an image that is kept, in the pixels of the screen. While its
/// size changes it stretches what it has; when the size rests, that is drawn anew, which may calculate. It
/// never does so in the midst of an operation: not while the window is locked, nor behind a dialog.
class GraphImage final : public QWidget {
 public:
  /// How long a size must last before it is drawn.
  static constexpr int rest_in_ms = 150;

  /// Both must outlive the image.
  GraphImage(ShownGraph& graph, Messages& messages, QWidget* parent = nullptr);

  /// The next calculation is to be for the size that the image has now.
  void fit();
  /// What it shows has changed: it is drawn anew when the window comes to it.
  void draw_soon() { draw_after(0); }
  /// What it paints; null while the label shows.
  const QImage& image() const { return image_; }
  /// Whether that is the page's state, in the size of the image.
  bool is_drawn() const { return !stale_; }

  QSize sizeHint() const override { return {800, 500}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void draw_after(int milliseconds);
  void draw();
  QImage drawn_image();
  void paint_image(QPainter& painter) const;

  ShownGraph& graph_;
  Messages& messages_;
  FontMeasure measure_;
  QLabel* label_;
  QTimer timer_;
  QImage image_;
  /// The size that it was drawn for; any other is stretched.
  QSize drawn_size_;
  /// The image is not that of the page's state and size.
  bool stale_ = true;
};

}  // namespace kov
