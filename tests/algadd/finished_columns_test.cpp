#include "algadd/finished_columns.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "numbers/errors.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr double no_limit = std::numeric_limits<double>::infinity();

TEST(FinishedColumns, TakeTheSmallestForm) {
  const auto form = [](const auto& parts) { return finished_column(std::span(parts)).form(); };
  EXPECT_EQ(form(std::vector<double>{0.0, 0.0}), PartForm::floating_zero);
  EXPECT_EQ(form(std::vector<double>{0.0, 1e-320}), PartForm::doubles);
  EXPECT_EQ(form(std::vector<ratyp>{0, 0}), PartForm::zero);
  EXPECT_EQ(form(std::vector<ratyp>{{1, 2}, {1, 3}}), PartForm::integers);
  EXPECT_EQ(form(std::vector<ratyp>{0, ratyp::floating(0.0)}), PartForm::mixed_zeros);
}

TEST(FinishedColumns, KeepEveryPart) {
  const std::vector<ratyp> parts = {ratyp::floating(-0.1), {highest_int, 2}, 0, ratyp::floating(0.0)};
  const Column column = finished_column(std::span(parts));
  ASSERT_EQ(column.size(), parts.size());
  for (std::size_t i = 0; i < parts.size(); ++i) {
    EXPECT_EQ(column.get(i).exact(), parts[i].exact());
    EXPECT_EQ(column.get(i), parts[i]);
  }
}

TEST(FinishedColumns, WhatIsNotFiniteIsNoticedAtEveryPlace) {
  for (const double bad : {no_limit, -no_limit, std::numeric_limits<double>::quiet_NaN()}) {
    for (std::size_t size = 1; size <= 40; ++size) {
      for (std::size_t place = 0; place < size; ++place) {
        std::vector<double> parts(size, std::numeric_limits<double>::max());
        EXPECT_NO_THROW(finished_column(std::span<const double>(parts)));
        parts[place] = bad;
        EXPECT_THROW(finished_column(std::span<const double>(parts)), floating_overflow)
            << size << ", " << place;
        std::vector<ratyp> mixed(size, 3);
        mixed[place] = ratyp::floating(bad);
        EXPECT_THROW(finished_column(std::span<const ratyp>(mixed)), floating_overflow)
            << size << ", " << place;
      }
    }
  }
}

}  // namespace
}  // namespace kov
