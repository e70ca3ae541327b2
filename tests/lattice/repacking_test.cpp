#include "lattice/repacking.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

/// Keys of step 0 inside the box.
std::vector<Lk> keys_inside(const KeyBox& box, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::vector<Lk> keys{box.min, box.max};
  for (int i = 0; i < 100; ++i) {
    Lk key;
    for (std::size_t k = 1; k < MaxDimCount; ++k) {
      key.coo[k] = std::uniform_int_distribution(box.min.coo[k], box.max.coo[k])(random);
    }
    keys.push_back(key);
  }
  return keys;
}

/// That keys packed by `from` become the same keys packed by `to`, whichever of them the repacking is made
/// of.
void expect_repacked(const KeyFrame& from, const KeyFrame& to, const std::vector<Lk>& keys) {
  std::vector<std::uint64_t> packed;
  std::vector<std::uint64_t> expected;
  for (const Lk& key : keys) {
    packed.push_back(from.pack(key));
    expected.push_back(to.pack(key));
  }
  for (const std::size_t sample : {std::size_t{0}, keys.size() / 2, keys.size() - 1}) {
    std::vector<std::uint64_t> repacked = packed;
    Repacking(from, to, packed[sample]).apply(repacked);
    EXPECT_EQ(repacked, expected) << sample;
  }
}

KeyBox box_along(std::initializer_list<std::pair<std::int32_t, std::int32_t>> bounds) {
  KeyBox box{Lk::at(3, 0), Lk::at(3, 0)};
  std::size_t position = 1;
  for (const auto& [low, high] : bounds) {
    box.min.coo[position] = low;
    box.max.coo[position++] = high;
  }
  return box;
}

struct RepackingCase {
  const char* name;
  KeyBox keys;
  KeyBox to;
};

// clang-format off
const RepackingCase repacking_cases[] = {
    {"the same frame",        box_along({{-3, 4}, {0, 9}}),   box_along({{-3, 4}, {0, 9}})},
    {"lower bounds",          box_along({{-3, 4}, {0, 9}}),   box_along({{-90, 4}, {-7, 9}})},
    {"more bits",             box_along({{-3, 4}, {0, 9}}),   box_along({{-3, 400}, {0, 99}})},
    {"a new position varies", box_along({{1, 5}, {7, 7}}),    box_along({{0, 5}, {-2, 30}})},
    {"nothing varies",        box_along({{6, 6}}),            box_along({{0, 7}})},
    {"ends of the range",     box_along({{lowest_int, 0}}),   box_along({{lowest_int, highest_int}})},
    {"the upper end",         box_along({{highest_int - 9, highest_int}, {1, 2}}),
                              box_along({{highest_int - 99, highest_int}, {-1, 2}})},
};
// clang-format on

TEST(Repacking, KeysStayWhatTheyWere) {
  for (const auto& [name, keys, to] : repacking_cases) {
    SCOPED_TRACE(name);
    expect_repacked(*KeyFrame::for_box(keys), *KeyFrame::for_box(to), keys_inside(keys, 1));
    expect_repacked(*KeyFrame::for_box(keys), *KeyFrame::with_room(to), keys_inside(keys, 2));
  }
}

TEST(Repacking, AFrameMayHoldPositionsThatDoNotVaryInTheOther) {
  const KeyBox keys = box_along({{5, 5}, {1, 3}});
  const KeyFrame from = *KeyFrame::for_box(box_along({{0, 9}, {1, 3}}));
  const KeyFrame to = *KeyFrame::for_box(box_along({{5, 5}, {-20, 3}}));
  expect_repacked(from, to, keys_inside(keys, 3));
}

TEST(Repacking, RandomFramesOfAllPositions) {
  std::mt19937 random(4);
  const auto integer = [&](std::int32_t low, std::int32_t high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  for (int run = 0; run < 300; ++run) {
    KeyBox keys{Lk(), Lk()};
    KeyBox wider{Lk(), Lk()};
    for (std::size_t k = 1; k < MaxDimCount; ++k) {
      keys.min.coo[k] = integer(-1000000, 1000000);
      keys.max.coo[k] = keys.min.coo[k] + integer(0, 1);
      wider.min.coo[k] = keys.min.coo[k] - integer(0, 1);
      wider.max.coo[k] = keys.max.coo[k] + integer(0, 1);
    }
    SCOPED_TRACE(run);
    const auto to = KeyFrame::for_box(wider);
    ASSERT_TRUE(to);
    expect_repacked(*KeyFrame::for_box(keys), *to, keys_inside(keys, static_cast<std::uint32_t>(run)));
    expect_repacked(*to, *KeyFrame::for_box(keys), keys_inside(keys, static_cast<std::uint32_t>(run)));
  }
}

TEST(Repacking, NoKeysAreNoWork) {
  const KeyFrame frame = *KeyFrame::for_box(box_along({{0, 9}}));
  std::vector<std::uint64_t> none;
  Repacking(frame, frame, 0).apply(none);
  EXPECT_TRUE(none.empty());
}

}  // namespace
}  // namespace kov
