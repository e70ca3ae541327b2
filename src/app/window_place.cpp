#include "app/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace kov {
namespace {

constexpr const char* height_keyword = "F1_Screen_Default_Height";
constexpr const char* width_keyword = "F1_Screen_Default_Width";
constexpr const char* top_keyword = "F1_Screen_Default_Top";
constexpr const char* left_keyword = "F1_Screen_Default_Left";

/// Pixels; what lies beyond would overflow a rectangle's edges, and is on no screen.
constexpr int farthest = 100'000;

constexpr QSize usual_size(1200, 800);

int area(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

}  // namespace

QList<QRect> available_screens() {
  QList<QRect> areas;
  for (const QScreen* screen : QGuiApplication::screens()) areas.append(screen->availableGeometry());
  return areas;
}

WindowFacts facts_of(const QRect& place) {
  WindowFacts facts;
  facts.height = place.height();
  facts.width = place.width();
  facts.top = place.top();
  facts.left = place.left();
  return facts;
}

QRect on_screen(const QRect& wanted, const QSize& smallest, const QList<QRect>& screens) {
  if (screens.isEmpty()) return wanted;
  const QRect screen = *std::max_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
    return area(a & wanted) < area(b & wanted);
  });
  const QSize size = wanted.size().expandedTo(smallest).boundedTo(screen.size());
  const int left = std::clamp(wanted.left(), screen.left(), screen.left() + screen.width() - size.width());
  const int top = std::clamp(wanted.top(), screen.top(), screen.top() + screen.height() - size.height());
  return {QPoint(left, top), size};
}

QRect WindowPlace::initial(const QList<QRect>& screens) {
  QRect place(QPoint(0, 0), usual_size);
  if (screens.isEmpty()) return place;
  place.moveCenter(screens.front().center());
  return on_screen(place, QSize(0, 0), screens);
}

QRect WindowPlace::wanted() const {
  const auto value = [this](const char* keyword) {
    return std::clamp(static_cast<int>(cph_.kmi(keyword)), -farthest, farthest);
  };
  return {value(left_keyword), value(top_keyword), value(width_keyword), value(height_keyword)};
}

void WindowPlace::follow_parameters() {
  const QRect place = wanted();
  if (place == known_) return;
  known_ = place;
  if (place == QRect(window_.pos(), window_.size())) return;
  if (window_.isMaximized() || window_.isFullScreen()) window_.showNormal();
  const QRect visible = on_screen(place, window_.minimumSizeHint(), available_screens());
  window_.move(visible.topLeft());
  window_.resize(visible.size());
}

void WindowPlace::record() {
  if (!window_.isVisible() || window_.isMaximized() || window_.isFullScreen() || window_.isMinimized()) {
    return;
  }
  const std::int32_t pages = facts_.page_count;
  facts_ = facts_of({window_.pos(), window_.size()});
  facts_.page_count = pages;
  cph_.setkmi_1(height_keyword, facts_.height);
  cph_.setkmi_1(width_keyword, facts_.width);
  cph_.setkmi_1(top_keyword, facts_.top);
  cph_.setkmi_1(left_keyword, facts_.left);
  known_ = wanted();
}

}  // namespace kov
