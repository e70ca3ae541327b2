#include "graphs/qt/graph_image.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>
#include <new>

#include "pictures/qt/picture_painter.h"
#include "widgets/qt_text.h"

namespace kov {

GraphImage::GraphImage(ShownGraph& graph, Messages& messages, QWidget* parent)
    : QWidget(parent), graph_(graph), messages_(messages), label_(new QLabel) {
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignCenter);
  // The window may be smaller than the label.
  label_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  (new QVBoxLayout(this))->addWidget(label_);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &GraphImage::draw);
}

void GraphImage::fit() { graph_.fit(width(), height(), measure_); }

void GraphImage::draw_after(int milliseconds) {
  stale_ = true;
  timer_.start(milliseconds);
}

/// What is put off here is taken up when the image is shown, when it is enabled, or at the next look.
void GraphImage::draw() {
  if (!isVisible() || !isEnabled()) return;
  if (QApplication::activeModalWidget() != nullptr) return timer_.start(rest_in_ms);
  const QSize size = this->size();
  try {
    image_ = drawn_image();
    drawn_size_ = size;
  } catch (const std::bad_alloc&) {
    image_ = {};
    messages_.error("Not enough memory to draw the page.");
  }
  label_->setText(to_qt(graph_.label()));
  label_->setVisible(image_.isNull());
  setAccessibleDescription(label_->text());
  stale_ = false;
  timer_.stop();
  // A calculation lets the window react, and so be resized.
  if (this->size() != size) draw_after(rest_in_ms);
  update();
}

/// Null when the page has nothing but its label.
QImage GraphImage::drawn_image() {
  const Picture picture = graph_.picture(width(), height(), measure_);
  if (!graph_.drawn()) return {};
  QImage image = picture_image(picture, devicePixelRatioF());
  if (image.isNull()) throw std::bad_alloc();
  return image;
}

bool GraphImage::event(QEvent* event) {
  const bool enabled = event->type() == QEvent::EnabledChange && isEnabled();
  if ((enabled && stale_) || event->type() == QEvent::ScreenChangeInternal) draw_soon();
  return QWidget::event(event);
}

void GraphImage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!image_.isNull()) paint_image(painter);
  // For those who walk by keys; others are not to have a frame around each picture.
  if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

/// Pixel by pixel where it can be: the size may end within a pixel of the screen, and stretched by that part
/// every line would be blurred.
void GraphImage::paint_image(QPainter& painter) const {
  if (size() == drawn_size_) return painter.drawImage(QPoint(0, 0), image_);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), image_);
}

void GraphImage::resizeEvent(QResizeEvent*) { draw_after(rest_in_ms); }

void GraphImage::showEvent(QShowEvent*) {
  if (stale_) draw_soon();
}

}  // namespace kov
