#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "workbench/desk.h"

namespace kov {
namespace {

// A run may be interrupted: saved half-way and opened again, it goes on to the same row, except for what
// the 15 digits of a floating text lose.

std::string example(const std::string& name) {
  return (std::filesystem::path(KOV_SOURCE_DIR) / "examples" / name).string();
}

void run_at_once(Desk& desk, const std::string& name, const std::string& steps) {
  desk.run("File", "Open", {example(name)});
  desk.run("Alg", "Algadd with del", {steps});
}

/// Twice so many steps, with a save and an open between.
void run_in_halves(Desk& desk, const std::string& name, const std::string& steps) {
  run_at_once(desk, name, steps);
  const std::string file = (desk.folder.path() / "half.aa1").string();
  desk.run("File", "Save as", {file});
  desk.run("Cmd", "Delete All");
  desk.run("File", "Open", {file});
  desk.run("Alg", "Algadd with del", {steps});
}

bool same_part(const ratyp& a, const ratyp& b) {
  if (a.exact() && b.exact()) return a == b;
  const double difference = std::abs(to_double(a) - to_double(b));
  return a.exact() == b.exact() && difference <= 1E-12 * std::abs(to_double(a));
}

void expect_same_points(const Lmap& whole, const Lmap& halves) {
  ASSERT_EQ(whole.count(), halves.count());
  std::size_t different = 0;
  auto other = halves.begin();
  for (auto point = whole.begin(); point != whole.end(); ++point, ++other) {
    ASSERT_EQ(point.key(), other.key());
    const bool same = same_part(point.quantity().re, other.quantity().re) &&
                      same_part(point.quantity().im, other.quantity().im);
    if (!same) ++different;
  }
  EXPECT_EQ(different, 0U);
}

TEST(ResumedRun, FloatingWalkOf200StepsEqualsTwiceAHundred) {
  Desk whole;
  run_at_once(whole, "walk2d.aa1", "200");
  EXPECT_EQ(whole.lmap().nlast(), 200);
  EXPECT_EQ(whole.lmap().count(), 201U * 201U);
  Desk halves;
  run_in_halves(halves, "walk2d.aa1", "100");
  expect_same_points(whole.lmap(), halves.lmap());
}

TEST(ResumedRun, ExactAmplitudesAreTheSame) {
  Desk whole;
  run_at_once(whole, "interference.aa1", "20");
  Desk halves;
  run_in_halves(halves, "interference.aa1", "10");
  EXPECT_EQ(halves.lmap().nlast(), 20);
  for (auto point = halves.lmap().begin(); point != halves.lmap().end(); ++point) {
    ASSERT_TRUE(point.quantity().re.exact() && point.quantity().im.exact());
  }
  expect_same_points(whole.lmap(), halves.lmap());
}

}  // namespace
}  // namespace kov
