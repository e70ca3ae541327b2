#include <gtest/gtest.h>

#include <bit>
#include <map>
#include <random>
#include <string>

#include "keep_points.h"
#include "lattice/lmap.h"
#include "support/failing_allocation.h"
#include "support/points_text.h"
#include "text/integers.h"

namespace kov {
namespace {

using PlainMap = std::map<Lk, cotyp, LkOrder>;

bool identical(const ratyp& a, const ratyp& b) {
  if (a.exact() != b.exact()) return false;
  if (!a.exact()) return std::bit_cast<std::uint64_t>(a.fl()) == std::bit_cast<std::uint64_t>(b.fl());
  return a.nu() == b.nu() && a.de() == b.de();
}

bool identical(const cotyp& a, const cotyp& b) { return identical(a.re, b.re) && identical(a.im, b.im); }

/// Every key, every part and every state, in both directions, and what the store says of itself.
bool identical(const Lmap& lmap, const PlainMap& plain) {
  if (lmap.count() != plain.size()) return false;
  auto point = lmap.begin();
  std::size_t in_rows = 0;
  for (const auto& [key, q] : plain) {
    if (point == lmap.end() || point.key() != key || !identical(point.quantity(), q)) return false;
    if (!point.row().box().contains(key)) return false;
    ++point;
  }
  for (const Row& row : lmap.rows()) in_rows += row.count();
  if (point != lmap.end() || in_rows != plain.size()) return false;
  for (auto back = plain.rbegin(); back != plain.rend(); ++back) {
    --point;
    if (point.key() != back->first) return false;
  }
  return point == lmap.begin();
}

/// How far keys reach at their positions.
enum class Reach { few, line, plane, everywhere };

class PlainPoints {
 public:
  PlainPoints(std::uint32_t seed, Reach reach) : engine_(seed), reach_(reach) {}

  std::int32_t integer(std::int32_t lowest, std::int32_t highest) {
    return std::uniform_int_distribution<std::int32_t>(lowest, highest)(engine_);
  }
  std::int32_t step() {
    switch (integer(0, 9)) {
      case 0:
        return lowest_int + integer(0, 1);
      case 1:
        return highest_int - integer(0, 1);
      default:
        return integer(-1, 1);
    }
  }
  Lk key() {
    Lk key = Lk::at(integer(0, 2), step());
    switch (reach_) {
      case Reach::few:
        key.coo[1] = integer(-3, 3);
        key.coo[30] = integer(0, 1);
        break;
      case Reach::line:
        key.coo[5] = integer(-30'000, 30'000);
        break;
      case Reach::plane:
        key.coo[1] = integer(-40, 40) * (integer(0, 50) == 0 ? 10'000'000 : 1);
        key.coo[2] = integer(-200, 200);
        break;
      case Reach::everywhere:
        for (std::size_t i = 1; i < 5; ++i) key.coo[i] = coordinate();
    }
    return key;
  }
  /// No zero among them.
  cotyp quantity() {
    switch (integer(0, 9)) {
      case 0:
        return cotyp::floating(integer(1, 3) * 0.25, 0);
      case 1:
        return {ratyp::floating(integer(1, 3) * 0.1), ratyp(integer(0, 1))};
      case 2:
        return cotyp(integer(1, 5), integer(1, 7), integer(-1, 1), 3);
      case 3:
        return integer(0, 1) == 0 ? lowest_int : highest_int;
      default:
        return integer(0, 1) == 0 ? -1 : integer(1, 2);
    }
  }

 private:
  std::int32_t coordinate() {
    switch (integer(0, 3)) {
      case 0:
        return lowest_int;
      case 1:
        return highest_int;
      case 2:
        return integer(-2, 2);
      default:
        return integer(lowest_int, highest_int);
    }
  }

  std::mt19937 engine_;
  Reach reach_;
};

void add_to(PlainMap& plain, const Lk& key, const cotyp& q) {
  cotyp& sum = plain[key];
  sum = is_zero(sum) ? q : sum + q;
  if (is_zero(sum)) plain.erase(key);
}

void erase_plain_rows(PlainMap& plain, std::int32_t a, std::int32_t b) {
  std::erase_if(plain, [&](const auto& point) { return a <= point.first.n() && point.first.n() <= b; });
}

/// Does random things to a store and to a plain map.
class AgainstPlainMap {
 public:
  AgainstPlainMap(std::uint32_t seed, Reach reach, int batch) : random_(seed, reach), batch_(batch) {}

  void one_operation() {
    switch (random_.integer(0, 12)) {
      case 0:
        return erase_some();
      case 1:
        return erase_while_walking();
      case 2:
        return treat_rows();
      case 3:
        return shift();
      case 4:
        return merge();
      case 5:
        return transform();
      case 6:
        return look_up();
      case 7:
        return fail_to_write();
      default:
        return write();
    }
  }
  bool agree() const { return identical(lmap_, plain_); }

 private:
  void write() {
    for (int i = 0; i < batch_; ++i) {
      const Lk key = random_.key();
      const cotyp q = random_.quantity();
      switch (random_.integer(0, 3)) {
        case 0:
          lmap_.add(key, q);
          add_to(plain_, key, q);
          break;
        case 1:
          EXPECT_EQ(lmap_.insert_new(key, q), plain_.try_emplace(key, q).second);
          break;
        default:
          lmap_.set(key, q);
          plain_.insert_or_assign(key, q);
      }
    }
  }
  void erase_some() {
    for (int i = 0; i < batch_; ++i) {
      const auto at = plain_.lower_bound(random_.key());
      const Lk key = at == plain_.end() || i % 2 == 0 ? random_.key() : at->first;
      EXPECT_EQ(lmap_.erase(key), plain_.erase(key) != 0);
    }
  }
  void erase_while_walking() {
    const Lk from = random_.key();
    auto point = lmap_.lower_bound(from);
    auto plain = plain_.lower_bound(from);
    for (int i = 0; i < batch_ && plain != plain_.end(); ++i) {
      if (random_.integer(0, 2) == 0) {
        point = lmap_.erase(point);
        plain = plain_.erase(plain);
      } else {
        ++point;
        ++plain;
      }
      ASSERT_EQ(point == lmap_.end(), plain == plain_.end());
      if (plain != plain_.end()) {
        ASSERT_EQ(point.key(), plain->first);
      }
    }
  }
  void treat_rows() {
    const std::int32_t a = random_.step();
    const std::int32_t b = random_.step();
    PlainMap within = plain_;
    std::erase_if(within, [&](const auto& point) { return point.first.n() < a || point.first.n() > b; });
    EXPECT_EQ(lmap_.count_in_rows(a, b), within.size());
    EXPECT_TRUE(identical(lmap_.copy_rows(a, b), within));
    switch (random_.integer(0, 3)) {
      case 0:
        EXPECT_EQ(lmap_.erase_rows(a, b), within.size());
        erase_plain_rows(plain_, a, b);
        break;
      case 1:
        EXPECT_TRUE(identical(lmap_.extract_rows(a, b), within));
        erase_plain_rows(plain_, a, b);
        break;
      default:
        erase_odd_of(a, b);
    }
  }
  void erase_odd_of(std::int32_t a, std::int32_t b) {
    const auto even = [](const Lk& key, const cotyp&) { return key.coo[1] % 2 == 0 && key.l() != 1; };
    const std::size_t erased = std::erase_if(plain_, [&](const auto& point) {
      return a <= point.first.n() && point.first.n() <= b && !even(point.first, point.second);
    });
    EXPECT_EQ(keep_points(lmap_, a, b, even), erased);
  }
  void shift() {
    const std::int32_t delta = random_.step();
    lmap_.shift_steps(delta);
    PlainMap moved;
    for (const auto& point : plain_) {
      Lk key = point.first;
      key.coo[0] = wrapping_add(key.n(), delta);
      moved.emplace(key, point.second);
    }
    plain_.swap(moved);
  }
  void merge() {
    Lmap other;
    for (int i = 0; i < batch_; ++i) {
      const Lk key = random_.key();
      const cotyp q = random_.quantity();
      if (other.insert_new(key, q)) plain_.try_emplace(key, q);
    }
    lmap_.merge_new(other);
    EXPECT_TRUE(other.empty());
  }
  void transform() {
    const cotyp summand = random_.quantity();
    lmap_.transform([&](const cotyp& q) { return q + summand; });
    for (auto& point : plain_) point.second += summand;
    std::erase_if(plain_, [](const auto& point) { return is_zero(point.second); });
  }
  void look_up() {
    for (int i = 0; i < batch_; ++i) {
      const auto at = plain_.lower_bound(random_.key());
      const Lk key = at == plain_.end() || i % 2 == 0 ? random_.key() : at->first;
      const auto lower = lmap_.lower_bound(key);
      const auto plain = plain_.lower_bound(key);
      ASSERT_EQ(lower == lmap_.end(), plain == plain_.end());
      if (plain != plain_.end()) {
        ASSERT_EQ(lower.key(), plain->first);
      }
      const bool there = plain != plain_.end() && plain->first == key;
      EXPECT_EQ(lmap_.contains(key), there);
      EXPECT_TRUE(identical(lmap_.get(key), there ? plain->second : cotyp()));
    }
  }
  /// Neither a write nor a merge that fails leaves a trace.
  void fail_to_write() {
    Lmap other;
    for (int i = 0; i < 5; ++i) other.set(random_.key(), random_.quantity());
    const Lmap other_before = other;
    for (std::int64_t k = 1; k < 6; ++k) {
      const Lk key = random_.key();
      const cotyp q = random_.quantity();
      bool failed = true;
      try {
        const FailingAllocation failing(k);
        if (k % 2 == 0) {
          lmap_.merge_new(other);
        } else {
          lmap_.set(key, q);
        }
        failed = false;
      } catch (const std::bad_alloc&) {
      }
      if (!failed && k % 2 != 0) plain_.insert_or_assign(key, q);
      if (!failed && k % 2 == 0) {
        for (auto point = other_before.begin(); point != other_before.end(); ++point) {
          plain_.try_emplace(point.key(), point.quantity());
        }
        return;
      }
      EXPECT_EQ(points_text(other), points_text(other_before));
    }
  }

  PlainPoints random_;
  int batch_;
  Lmap lmap_;
  PlainMap plain_;
};

void expect_agreement(Reach reach, int batch, std::uint32_t runs, int operations) {
  for (std::uint32_t seed = 1; seed <= runs; ++seed) {
    AgainstPlainMap both(seed, reach, batch);
    for (int i = 0; i < operations; ++i) {
      both.one_operation();
      ASSERT_TRUE(both.agree()) << "seed " << seed << ", operation " << i;
      ASSERT_FALSE(::testing::Test::HasFailure()) << "seed " << seed << ", operation " << i;
    }
  }
}

TEST(LmapDifferential, AgreesWithAPlainMapOnFewKeys) { expect_agreement(Reach::few, 5, 40, 250); }

TEST(LmapDifferential, AgreesWithAPlainMapOnALine) { expect_agreement(Reach::line, 2000, 2, 150); }

TEST(LmapDifferential, AgreesWithAPlainMapInAPlane) { expect_agreement(Reach::plane, 300, 3, 200); }

TEST(LmapDifferential, AgreesWithAPlainMapOnKeysBeyond64Bits) {
  expect_agreement(Reach::everywhere, 20, 10, 200);
}

}  // namespace
}  // namespace kov
