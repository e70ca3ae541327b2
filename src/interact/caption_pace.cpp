#include "interact/caption_pace.h"

#include <utility>

namespace kov {

bool CaptionPace::passes(const std::string& caption, Time now) {
  if (last_passed_ && now - *last_passed_ < interval) {
    kept_ = caption;
    return false;
  }
  last_passed_ = now;
  kept_.reset();
  return true;
}

std::optional<std::string> CaptionPace::end() {
  last_passed_.reset();
  return std::exchange(kept_, std::nullopt);
}

}  // namespace kov
