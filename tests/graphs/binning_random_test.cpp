#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <map>
#include <random>
#include <set>
#include <vector>

#include "graphs/graph1_desk.h"
#include "graphs/map_desk.h"

namespace kov {
namespace {

/// Points in several rows and lattices, of quantities of one kind or of all.
void fill_randomly(Lmap& lmap, std::mt19937& engine) {
  const auto integer = [&engine](std::int32_t lowest, std::int32_t highest) {
    return std::uniform_int_distribution<std::int32_t>(lowest, highest)(engine);
  };
  const std::int32_t kind = integer(0, 4);
  for (std::int32_t i = integer(1, 1500); i > 0; --i) {
    Lk key = Lk::at(integer(0, 2), integer(-1, 2), integer(-30, 30));
    key.coo[2] = integer(0, 50);
    switch (kind == 4 ? integer(0, 3) : kind) {
      case 0:
        lmap.set(key, integer(-5, 5));
        break;
      case 1:
        lmap.set(key, cotyp::floating(integer(-99, 99) * 0.1, 0));
        break;
      case 2:
        lmap.set(key, cotyp(integer(-9, 9), integer(1, 9), integer(-9, 9), 3));
        break;
      default:
        lmap.set(key, cotyp::floating(integer(-99, 99) * 0.1, integer(-99, 99) * 0.7));
    }
    if (integer(0, 9) == 0 && !lmap.empty()) lmap.erase(lmap.begin());
  }
}

KeyBox random_side(std::mt19937& engine) {
  KeyBox box{Lk::filled(lowest_int), Lk::filled(highest_int)};
  for (const std::size_t i : {0U, 1U, 2U, 31U}) {
    if (engine() % 4 != 0) continue;
    box.min.coo[i] = static_cast<std::int32_t>(engine() % 3) - 1;
    box.max.coo[i] = box.min.coo[i] + static_cast<std::int32_t>(engine() % 20);
  }
  return box;
}

std::uint64_t bits_of(double value) { return std::bit_cast<std::uint64_t>(value); }

/// The five curves of a range before anything divides them, point by point.
struct PlainCurves {
  PlainCurves(const Graph1Desk& desk, std::size_t range)
      : at(g1_quantity_count, std::vector<double>(G1Chainsize)) {
    const auto position = static_cast<std::size_t>(desk.table.icoo_along_x_in_g[range]);
    for (auto point = desk.lmap.begin(); point != desk.lmap.end(); ++point) {
      if (!desk.table.range[range].contains(point.key())) continue;
      const std::size_t column = desk.par.column_of(point.key().coo[position]);
      const cotyp q = point.quantity();
      const double re = to_double(q.re);
      const double im = to_double(q.im);
      at[g1_qre][column] += re;
      at[g1_qim][column] += im;
      at[g1_qq][column] += to_double(qq(q));
      at[g1_qa][column] += std::hypot(re, im);
      at[g1_cntAt][column] += 1;
      ++count;
    }
  }
  std::vector<std::vector<double>> at;
  std::int64_t count = 0;
};

TEST(Binning, OfGraph1IsThatOfThePointsOneByOne) {
  std::mt19937 engine(41);
  int calculated = 0;
  for (int run = 0; run < 150; ++run) {
    Graph1Desk desk;
    desk.cph.setkmi_1("Graph1_divmode", 0);
    desk.cph.setkmi_1("Graph1_BarDbl_Fill0", 0);
    fill_randomly(desk.lmap, engine);
    desk.table.range = {random_side(engine), random_side(engine)};
    desk.table.icoo_along_x_in_g = {static_cast<int>(engine() % 3), static_cast<int>(engine() % 3)};
    desk.checked = run % 3 == 0 ? checks({cb0qre}) : checks({cb0qre, cb1qa});
    if (desk.calculate() != G1Outcome::calculated) continue;
    ++calculated;
    for (std::size_t range = 0; range < g1_range_count; ++range) {
      if (range == 1 && run % 3 == 0) continue;
      const PlainCurves plain(desk, range);
      ASSERT_EQ(desk.par.range[range].count, plain.count) << run;
      for (std::size_t quantity = 0; quantity < g1_quantity_count; ++quantity) {
        for (std::size_t column = 0; column < 100; ++column) {
          ASSERT_EQ(bits_of(desk.par.range[range].curve[quantity].at[column]),
                    bits_of(plain.at[quantity][column]))
              << run << ", range " << range << ", quantity " << quantity << ", column " << column;
        }
      }
    }
  }
  EXPECT_GT(calculated, 100);
}

double plain_map_value(const cotyp& q, MapQuantity quantity) {
  const double re = to_double(q.re);
  const double im = to_double(q.im);
  const double values[] = {re, im, std::hypot(re, im), to_double(qq(q)), 1.0};
  return values[static_cast<std::size_t>(quantity)];
}

/// The map of a range, and what is known of its rows of pixels, point by point.
struct PlainMap {
  PlainMap(const MapDesk& desk, const ValueMap& map, bool overlapping) : value(60 * 40, ValueGrid::no_value) {
    const KeyBox& box = desk.tables.current_table().range[map.choice.range];
    for (auto point = desk.lmap.begin(); point != desk.lmap.end(); ++point) {
      const Lk key = point.key();
      if (!box.contains(key)) continue;
      ++count;
      const std::int32_t x = key.coo[static_cast<std::size_t>(map.x.position)];
      const std::int32_t y = key.coo[static_cast<std::size_t>(map.y.position)];
      const int column = map.x.pixel(x);
      const int row = map.y.pixel(y);
      const bool first = first_x.emplace(column, x).first->second == x;
      if (!(first_y.emplace(row, y).first->second == y && first) && !overlapping) continue;
      x_of_row[row].insert(x);
      double& sum = value[static_cast<std::size_t>(column * 40 + row)];
      sum = (ValueGrid::is_value(sum) ? sum : 0.0) + plain_map_value(point.quantity(), map.choice.quantity);
    }
  }
  /// Whether some row has several x, and all of each row are as odd as each other.
  bool steps_by_two() const {
    bool several = false;
    bool odd_step = false;
    for (const auto& [row, all] : x_of_row) {
      several |= all.size() > 1;
      for (const std::int32_t x : all) odd_step |= (x - *all.begin()) % 2 != 0;
    }
    return several && !odd_step;
  }

  std::vector<double> value;
  std::map<int, std::int32_t> first_x;
  std::map<int, std::int32_t> first_y;
  std::map<int, std::set<std::int32_t>> x_of_row;
  std::int64_t count = 0;
};

TEST(Binning, OfGraph2IsThatOfThePointsOneByOne) {
  std::mt19937 engine(43);
  int filled = 0;
  for (int run = 0; run < 200; ++run) {
    SCOPED_TRACE(run);
    MapDesk desk;
    const bool overlapping = engine() % 2 == 0;
    desk.set("Graph2_AvoidOverlappingSum", overlapping ? 0 : 1);
    desk.set("Graph2_divide_y_by_count", 0);
    fill_randomly(desk.lmap, engine);
    RangeTable& table = desk.tables.current_table();
    table.range = {random_side(engine), random_side(engine)};
    const int radio = static_cast<int>(engine() % 10);
    ValueMap map;
    if (!desk.calculate(map, {60, 40}, radio).empty()) continue;
    ++filled;
    const PlainMap plain(desk, map, overlapping);
    EXPECT_EQ(map.point_count, plain.count);
    EXPECT_EQ(map.steps_by_two(), plain.steps_by_two());
    for (int column = 0; column < 60; ++column) {
      for (int row = 0; row < 40; ++row) {
        ASSERT_EQ(bits_of(map.grid.value(column, row)),
                  bits_of(plain.value[static_cast<std::size_t>(column * 40 + row)]))
            << column << " " << row;
      }
    }
  }
  EXPECT_GT(filled, 100);
}

}  // namespace
}  // namespace kov
