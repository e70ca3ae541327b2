#include "lattice/key_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <random>
#include <vector>

#include "text/integers.h"

namespace kov {
namespace {

/// A box with the given lowest and highest values from position 1 on; the rest is 7.
KeyBox frame_box(const std::vector<std::pair<std::int32_t, std::int32_t>>& sides) {
  KeyBox box{Lk::filled(7), Lk::filled(7)};
  for (std::size_t i = 0; i < sides.size(); ++i) {
    box.min.coo[i + 1] = sides[i].first;
    box.max.coo[i + 1] = sides[i].second;
  }
  return box;
}

Lk random_key_in(const KeyBox& box, std::mt19937& engine) {
  Lk key;
  for (std::size_t i = 0; i < key.coo.size(); ++i) {
    key.coo[i] = std::uniform_int_distribution<std::int32_t>(box.min.coo[i], box.max.coo[i])(engine);
  }
  return key;
}

TEST(KeyFrame, GivesEveryPositionTheBitsOfItsSide) {
  const auto frame = KeyFrame::for_box(frame_box({{-3, 4}, {5, 5}, {0, 8}}));
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->bits(1), 3);
  EXPECT_EQ(frame->bits(2), 0);
  EXPECT_EQ(frame->bits(3), 4);
  EXPECT_EQ(frame->total_bits(), 7);
  EXPECT_EQ(frame->low(1), -3);
  EXPECT_EQ(frame->bits(l_position), 0);
  EXPECT_EQ(frame->low(l_position), 7);
  EXPECT_EQ(frame->shift_of(1), 4);
}

TEST(KeyFrame, TheLatticeIndexIsLowest) {
  KeyBox box{Lk::at(0, 5), Lk::at(3, 5, 1)};
  const auto frame = KeyFrame::for_box(box);
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->bits(l_position), 2);
  EXPECT_EQ(frame->pack(Lk::at(1, 5, 1)), 5U);
  EXPECT_EQ(frame->shift(Lk::at(1, 1)), 1U);
  EXPECT_EQ(frame->coordinate(5, 31), 1);
  EXPECT_EQ(frame->coordinate(5, 1), 1);
  EXPECT_EQ(frame->coordinate(5, 9), 0);
}

TEST(KeyFrame, HasNoMoreThan64Bits) {
  EXPECT_TRUE(KeyFrame::for_box(frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}})));
  EXPECT_FALSE(KeyFrame::for_box(frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}, {0, 1}})));
  EXPECT_TRUE(KeyFrame::with_room(frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}})));
  EXPECT_FALSE(
      KeyFrame::with_room(frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}, {0, 1}})));
}

const std::vector<KeyBox>& frame_boxes() {
  static const std::vector<KeyBox> boxes = {
      frame_box({}),
      frame_box({{-3, 4}, {5, 5}, {0, 8}}),
      frame_box({{highest_int - 2, highest_int}, {lowest_int, lowest_int + 4}}),
      frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}}),
      frame_box({{0, 1'000'000}, {-5, 5}, {-500, 70'000}, {0, 0}, {100, 102}}),
      {Lk::at(0, 1, -100), Lk::at(39, 1, 100)},
  };
  return boxes;
}

TEST(KeyFrame, PackedKeysOrderAsTheKeysAndComeBack) {
  std::mt19937 engine(3);
  for (const KeyBox& box : frame_boxes()) {
    for (const auto& frame : {KeyFrame::for_box(box), KeyFrame::with_room(box)}) {
      ASSERT_TRUE(frame);
      EXPECT_TRUE(frame->covers(box));
      for (int i = 0; i < 300; ++i) {
        Lk a = random_key_in(box, engine);
        Lk b = random_key_in(box, engine);
        a.coo[0] = b.coo[0] = 12;
        ASSERT_TRUE(frame->covers(a));
        EXPECT_EQ(frame->unpack(frame->pack(a), 12), a);
        EXPECT_EQ(frame->pack(a) < frame->pack(b), Lk1LessLk2(a, b));
        Lk offset;
        for (std::size_t k = 1; k < offset.coo.size(); ++k) {
          offset.coo[k] = wrapping_subtract(b.coo[k], a.coo[k]);
        }
        const bool wraps = wrapping_add(a, offset) != b ||
                           std::abs(a.coo[1] / 2 - b.coo[1] / 2) > 500'000'000 ||
                           std::abs(a.coo[2] / 2 - b.coo[2] / 2) > 500'000'000;
        if (!wraps) {
          EXPECT_EQ(frame->pack(a) + frame->shift(offset), frame->pack(b));
        }
      }
    }
  }
}

TEST(KeyFrame, CoversNoKeyOutsideItsBits) {
  const auto frame = KeyFrame::for_box(frame_box({{highest_int - 2, highest_int}, {0, 3}}));
  ASSERT_TRUE(frame);
  const KeyBox box = frame_box({{highest_int, highest_int}, {0, 0}});
  EXPECT_TRUE(frame->covers(box.min));
  for (const auto& [position, value] : {std::pair{1, lowest_int}, {2, 4}, {2, -1}, {3, 8}, {31, 6}}) {
    Lk key = box.min;
    key.coo[static_cast<std::size_t>(position)] = value;
    EXPECT_FALSE(frame->covers(key)) << position;
  }
  Lk other_step = box.min;
  other_step.coo[0] = -1;
  EXPECT_TRUE(frame->covers(other_step));
}

TEST(KeyFrame, CeilingIsTheSmallestKeyNotLess) {
  std::mt19937 engine(8);
  const KeyBox small = frame_box({{-1, 1}, {3, 3}, {0, 1}});
  const KeyBox wider = frame_box({{-4, 4}, {2, 4}, {-3, 6}});
  const auto frame = KeyFrame::for_box(small);
  ASSERT_TRUE(frame);
  const std::uint64_t end = std::uint64_t{1} << frame->total_bits();
  for (int i = 0; i < 2000; ++i) {
    const Lk key = random_key_in(wider, engine);
    std::uint64_t expected = 0;
    while (expected < end && Lk1LessLk2(frame->unpack(expected, key.n()), key)) ++expected;
    const auto ceiling = frame->ceiling(key);
    ASSERT_EQ(ceiling.value_or(end), expected);
  }
}

TEST(KeyFrame, CeilingInAFrameOf64Bits) {
  const auto frame = KeyFrame::for_box(frame_box({{lowest_int, highest_int}, {lowest_int, highest_int}}));
  ASSERT_TRUE(frame);
  Lk key = Lk::filled(7);
  key.coo[1] = highest_int;
  key.coo[2] = highest_int;
  EXPECT_EQ(frame->ceiling(key), ~std::uint64_t{0});
  key.coo[5] = 8;
  EXPECT_EQ(frame->ceiling(key), std::nullopt);
  key.coo[2] = 0;
  EXPECT_EQ(frame->ceiling(key), (std::uint64_t{0xFFFFFFFF} << 32) + 0x80000001);
  key = Lk::filled(lowest_int);
  EXPECT_EQ(frame->ceiling(key), 0U);
  key = Lk::filled(highest_int);
  EXPECT_EQ(frame->ceiling(key), std::nullopt);
}

// Growing by a step at a time, to one side or to both, a row of side s needs in the order of log s frames.
TEST(KeyFrame, RoomMakesNewFramesRare) {
  for (const int sides : {1, 2}) {
    KeyBox box = frame_box({{0, 1}, {0, 1}});
    auto frame = KeyFrame::with_room(box);
    int frames = 1;
    for (int step = 0; step < 1000; ++step) {
      for (std::size_t i = 1; i <= 2; ++i) {
        ++box.max.coo[i];
        if (sides == 2) --box.min.coo[i];
      }
      if (frame->covers(box)) continue;
      frame = KeyFrame::with_room(box);
      ++frames;
    }
    EXPECT_LE(frames, 20) << sides;
  }
}

TEST(KeyFrame, RoomCostsNoOffsetOf32Bits) {
  // 16 bits each: without room 32 in all; only the first position may have more.
  const auto frame = KeyFrame::with_room(frame_box({{0, 65'000}, {0, 65'000}}));
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->bits(1), 17);
  EXPECT_EQ(frame->bits(2), 16);
  const auto small = KeyFrame::with_room(frame_box({{0, 6}, {0, 7}}));
  EXPECT_EQ(small->bits(1), 4);
  EXPECT_EQ(small->bits(2), 4);
}

TEST(KeyFrame, BoxOfKeysIsTheirs) {
  std::mt19937 engine(4);
  for (const KeyBox& box : frame_boxes()) {
    const auto frame = KeyFrame::with_room(box);
    std::vector<std::uint64_t> packed;
    const Lk first = random_key_in(box, engine);
    KeyBox expected{first, first};
    for (int i = 0; i < 20; ++i) {
      const Lk key = i == 0 ? first : random_key_in(box, engine);
      packed.push_back(frame->pack(key));
      expected.include(key);
    }
    expected.min.coo[0] = expected.max.coo[0] = -8;
    std::sort(packed.begin(), packed.end());
    EXPECT_EQ(frame->box_of(packed, -8), expected);
  }
}

TEST(KeyFrame, AreEqualWhenTheyPackAlike) {
  EXPECT_EQ(KeyFrame::for_box(frame_box({{0, 3}})), KeyFrame::for_box(frame_box({{0, 2}})));
  EXPECT_NE(KeyFrame::for_box(frame_box({{0, 3}})), KeyFrame::for_box(frame_box({{0, 4}})));
  EXPECT_NE(KeyFrame::for_box(frame_box({{0, 3}})), KeyFrame::for_box(frame_box({{1, 4}})));
}

TEST(KeyFrame, TheLatticeIndexTakesNoRoom) {
  for (const std::int32_t last : {0, 1, 6, 7}) {
    KeyBox box = frame_box({{0, 100}, {0, 100}});
    box.min.coo[l_position] = 0;
    box.max.coo[l_position] = last;
    const auto frame = KeyFrame::with_room(box);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->bits(l_position), std::bit_width(static_cast<unsigned>(last))) << last;
  }
}

}  // namespace
}  // namespace kov
