#include "datafile/date_time.h"

#include "text/integers.h"

namespace kov {

namespace {

std::string two_digits(int value) { return (value < 10 ? "0" : "") + int_text(value); }

}  // namespace

std::string date_time_text(std::time_t time) {
  std::tm parts{};
  localtime_r(&time, &parts);
  return two_digits(parts.tm_mday) + "." + two_digits(parts.tm_mon + 1) + "." +
         int_text(parts.tm_year + 1900) + " " + two_digits(parts.tm_hour) + ":" + two_digits(parts.tm_min) +
         ":" + two_digits(parts.tm_sec);
}

}  // namespace kov
