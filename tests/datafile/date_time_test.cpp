#include "datafile/date_time.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

std::time_t local(int year, int month, int day, int hour, int minute, int second) {
  std::tm parts{};
  parts.tm_year = year - 1900;
  parts.tm_mon = month - 1;
  parts.tm_mday = day;
  parts.tm_hour = hour;
  parts.tm_min = minute;
  parts.tm_sec = second;
  parts.tm_isdst = -1;
  return std::mktime(&parts);
}

TEST(DateTimeText, HasDayMonthYearAndTwoDigitsEach) {
  EXPECT_EQ(date_time_text(local(2026, 11, 20, 14, 3, 59)), "20.11.2026 14:03:59");
  EXPECT_EQ(date_time_text(local(2005, 6, 5, 0, 0, 7)), "05.06.2005 00:00:07");
}

}  // namespace
}  // namespace kov
