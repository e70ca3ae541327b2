#include "datafile/date_time.h"

#include "text/integers.h"

namespace kov {

namespace {

void append_two_digits(std::string& text, int value) {
  text += static_cast<char>('0' + value / 10);
  text += static_cast<char>('0' + value % 10);
}

}  // namespace

std::string date_time_text(std::time_t time) {
  std::tm parts{};
  localtime_r(&time, &parts);
  std::string text;
  append_two_digits(text, parts.tm_mday);
  text += '.';
  append_two_digits(text, parts.tm_mon + 1);
  text += '.' + int_text(parts.tm_year + 1900) + ' ';
  append_two_digits(text, parts.tm_hour);
  text += ':';
  append_two_digits(text, parts.tm_min);
  text += ':';
  append_two_digits(text, parts.tm_sec);
  return text;
}

}  // namespace kov
