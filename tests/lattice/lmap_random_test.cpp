#include <gtest/gtest.h>

#include "lattice/lmap.h"
#include "lattice/random_points.h"
#include "lattice/reference_store.h"

namespace kov {
namespace {

/// Does one random thing to a store and to its reference, and compares what both answer.
class Differential {
 public:
  explicit Differential(std::uint32_t seed) : random_(seed) {}

  void one_operation() {
    switch (random_.integer(0, 11)) {
      case 0:
      case 1:
      case 2:
        return write();
      case 3:
        return erase();
      case 4:
        return rows();
      case 5:
        return shift();
      case 6:
        return merge();
      case 7:
        return bounds();
      case 8:
        return walk_backwards();
      case 9:
        return transform();
      default:
        return look_up();
    }
  }

  void expect_equal() {
    ASSERT_EQ(points_text(store_), reference_.text());
    ASSERT_EQ(store_.count(), reference_.points.size());
    if (store_.empty()) return;
    ASSERT_EQ(store_.nlast(), reference_.nlast());
    ASSERT_EQ(store_.nfirst(), store_.begin().key().n());
  }

 private:
  void write() {
    const Lk key = random_.key();
    const cotyp q = random_.quantity();
    switch (random_.integer(0, 2)) {
      case 0:
        store_.set(key, q);
        reference_.set(key, q);
        break;
      case 1:
        reference_.set(key, reference_.contains(key) ? reference_.get(key) + q : q);
        EXPECT_TRUE(store_.add(key, q) == reference_.get(key));
        break;
      default:
        EXPECT_EQ(store_.insert_new(key, q), !reference_.contains(key) && !is_zero(q));
        if (!reference_.contains(key)) reference_.set(key, q);
    }
  }
  void erase() {
    const Lk key = random_.key();
    EXPECT_EQ(store_.erase(key), reference_.contains(key));
    reference_.set(key, 0);
    const auto at = store_.lower_bound(random_.key());
    if (at == store_.end()) return;
    reference_.set(at.key(), 0);
    const auto next = store_.erase(at);
    EXPECT_TRUE(next == store_.end() || reference_.contains(next.key()));
  }
  void rows() {
    const std::int32_t a = random_.step();
    const std::int32_t b = random_.step();
    ReferenceStore within = reference_;
    within.erase_where([&](const auto& point) { return point.key.n() < a || point.key.n() > b; });
    EXPECT_EQ(store_.count_in_rows(a, b), within.points.size());
    EXPECT_EQ(points_text(store_.copy_rows(a, b)), within.text());
    if (random_.integer(0, 1) == 0) {
      EXPECT_EQ(store_.erase_rows(a, b), within.points.size());
    } else {
      EXPECT_EQ(points_text(store_.extract_rows(a, b)), within.text());
    }
    reference_.erase_rows(a, b);
  }
  void shift() {
    const std::int32_t delta = random_.step();
    store_.shift_steps(delta);
    for (auto& point : reference_.points) point.key.coo[0] = wrapped(std::int64_t{point.key.n()} + delta);
  }
  void merge() {
    Lmap other;
    for (int i = random_.integer(0, 20); i > 0; --i) {
      const Lk key = random_.key();
      const cotyp q = random_.quantity();
      if (!other.insert_new(key, q)) continue;
      if (!reference_.contains(key)) reference_.set(key, q);
    }
    store_.merge_new(other);
    EXPECT_TRUE(other.empty());
  }
  void bounds() {
    const Lk key = random_.key();
    const auto lower = store_.lower_bound(key);
    EXPECT_EQ(lower != store_.end() && lower.key() == key, reference_.contains(key));
    std::size_t below = 0;
    for (auto point = store_.begin(); point != lower; ++point) ++below;
    const auto less = [&](const auto& point) { return Lk1LessLk2(point.key, key); };
    EXPECT_EQ(below, static_cast<std::size_t>(
                         std::count_if(reference_.points.begin(), reference_.points.end(), less)));
  }
  void walk_backwards() {
    std::size_t count = 0;
    for (auto point = store_.end(); point != store_.begin(); ++count) {
      --point;
      EXPECT_TRUE(point.quantity() == reference_.get(point.key()));
    }
    EXPECT_EQ(count, reference_.points.size());
  }
  void transform() {
    const cotyp summand = random_.quantity();
    store_.transform([&](const cotyp& q) { return q + summand; });
    for (auto& point : reference_.points) point.q += summand;
    reference_.erase_where([](const auto& point) { return is_zero(point.q); });
  }
  void look_up() {
    const Lk key = random_.key();
    EXPECT_EQ(store_.contains(key), reference_.contains(key));
    EXPECT_TRUE(store_.get(key) == reference_.get(key));
  }

  RandomPoints random_;
  Lmap store_;
  ReferenceStore reference_;
};

TEST(LmapRandom, AgreesWithThePlainStore) {
  for (std::uint32_t seed = 1; seed <= 30; ++seed) {
    Differential differential(seed);
    for (int i = 0; i < 200; ++i) {
      differential.one_operation();
      differential.expect_equal();
      if (::testing::Test::HasFailure()) FAIL() << "seed " << seed << ", operation " << i;
    }
  }
}

}  // namespace
}  // namespace kov
