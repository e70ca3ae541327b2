// A graph page on a screen with more pixels than units. The same tests run in processes of their own with
// QT_SCALE_FACTOR set.
#include "pages/graph_desk.h"
#include "pictures/qt/picture_painter.h"

namespace kov {
namespace {

class HighResolution : public GraphDesk {
 protected:
  /// Most of four sizes in a row end within a pixel of the screen where the ratio is not whole.
  void resize_by(int more) {
    window->resize(900 + more, 700 + more);
    settle();
  }
  double ratio() { return image().devicePixelRatioF(); }

  /// What is seen of the image, as pixels of the screen.
  QImage seen() {
    const QImage page = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QPoint corner = image().mapTo(window.get(), QPoint(0, 0));
    const auto pixels = [&](int length) { return static_cast<int>(std::lround(length * ratio())); };
    return page.copy(pixels(corner.x()), pixels(corner.y()), pixels(image().width()),
                     pixels(image().height()));
  }
};

TEST_F(HighResolution, IsTheOneOfTheEnvironment) {
  start_walk(graph1);
  const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
  EXPECT_EQ(ratio(), factor.isEmpty() ? 1 : factor.toDouble());
}

/// Every pixel of the screen is one of the picture as painted at that ratio, up to the edges of the page.
TEST_F(HighResolution, ThePictureFillsThePagePixelByPixel) {
  for (const int page : {graph1, graph2}) {
    start_walk(page);
    for (const int more : {0, 1, 2, 3}) {
      resize_by(more);
      const QImage& drawn = image().image();
      EXPECT_EQ(drawn.devicePixelRatio(), ratio());
      EXPECT_GE(drawn.width(), image().width() * ratio());
      EXPECT_GE(drawn.height(), image().height() * ratio());
      const QImage shown = seen();
      ASSERT_LE(shown.width(), drawn.width());
      ASSERT_LE(shown.height(), drawn.height());
      EXPECT_TRUE(shown == drawn.copy(shown.rect())) << page << ' ' << more;
    }
  }
}

/// Neither an enlarged picture of fewer pixels nor a part of a larger one.
TEST_F(HighResolution, ThePictureIsPaintedInThePixelsOfTheScreen) {
  start_walk(graph1);
  resize_by(1);
  const Picture picture = window->pages().graph1().picture(image().width(), image().height(), FontMeasure());
  EXPECT_TRUE(image().image() == picture_image(picture, ratio()));
  const QImage coarse = picture_image(picture, 1).scaled(image().image().size());
  EXPECT_EQ(image().image() == coarse, ratio() == 1);
}

}  // namespace
}  // namespace kov
