#include "interact/messages.h"

#include "interact/warning_level.h"

namespace kov {

void Messages::error(const std::string& text) {
  beep();
  show(MessageKind::error, text);
}

void Messages::essential_warning(const std::string& text) { warn(text, lowest_level); }

void Messages::warning(const std::string& text) { warn(text, level_of_usual_warnings); }

void Messages::minor_warning(const std::string& text) { warn(text, level_of_all_warnings); }

void Messages::remark(const std::string& text) {
  if (wl_ >= level_of_remarks) show(MessageKind::remark, text);
}

void Messages::information(const std::string& text) { show(MessageKind::information, text); }

void Messages::beep() { ring(); }

void Messages::set_wl(int level) {
  if (lowest_level <= level && level <= highest_level) wl_ = level;
}

void Messages::warn(const std::string& text, int level_of_box) {
  if (wl_ >= level_of_beeps) beep();
  if (wl_ >= level_of_box) show(MessageKind::warning, text);
}

}  // namespace kov
