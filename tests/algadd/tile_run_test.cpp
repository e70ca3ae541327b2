#include "algadd/tile_run.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <variant>

#include "algadd/step_choice.h"
#include "lattice/row_builder.h"
#include "planned_step.h"
#include "run_fixture.h"
#include "step_world.h"
#include "support/literal_step.h"

namespace kov {
namespace {

/// The quantities of a row: what is chosen for them decides how large a sum is, and so how large tiles are.
enum class TileNumbers {
  integers,
  complex_integers,
  doubles,
  complex_doubles,
  mixed,
  complex_mixed,
  fractions,
  any
};

cotyp tile_quantity(TileNumbers numbers, std::mt19937_64& random) {
  const auto integer = [&](int largest) {
    return static_cast<std::int32_t>(random() % (2 * static_cast<unsigned>(largest))) - largest;
  };
  const ratyp exact = 1 + 2 * integer(50);
  const ratyp floating = ratyp::floating(0.1 * (1 + 2 * integer(50)));
  const ratyp zero = ratyp::floating(0.0);
  switch (numbers) {
    case TileNumbers::integers:
      return {exact, 0};
    case TileNumbers::complex_integers:
      return {exact, integer(3)};
    case TileNumbers::doubles:
      return {floating, zero};
    case TileNumbers::complex_doubles:
      return {floating, ratyp::floating(integer(3))};
    case TileNumbers::mixed:
      return random() % 2 == 0 ? cotyp(exact, 0) : cotyp(floating, zero);
    case TileNumbers::complex_mixed:
      return random() % 2 == 0 ? cotyp(exact, 1) : cotyp(floating, zero);
    case TileNumbers::fractions:
      return {{integer(1000000), 1 + integer(500) + 500}, random() % 2 == 0 ? ratyp() : zero};
    case TileNumbers::any:
      break;
  }
  return {{integer(1000), 1 + integer(50) + 50}, floating};
}

constexpr std::array all_tile_numbers = {TileNumbers::integers,  TileNumbers::complex_integers,
                                         TileNumbers::doubles,   TileNumbers::complex_doubles,
                                         TileNumbers::mixed,     TileNumbers::complex_mixed,
                                         TileNumbers::fractions, TileNumbers::any};

/// The destinations of the plan, made in parts that end at the bounds, with the room of one thread.
Lmap in_parts(const StepPlan& plan, const std::vector<std::int64_t>& bounds) {
  return std::visit(
      [&]<class Arithmetic>(const Arithmetic& arithmetic) {
        StepSources<Arithmetic> sources(plan, arithmetic);
        for (std::size_t i = 0; i < sources.block_count(); ++i) sources.prepare(i);
        TileRoom<Arithmetic> room;
        RowBuilder row(plan.n, plan.frame);
        for (std::size_t part = 0; part + 1 < bounds.size(); ++part) {
          std::vector<BoundedBlock> blocks;
          TileRun<Arithmetic>(plan, arithmetic, sources, room, blocks).run(bounds[part], bounds[part + 1]);
          for (BoundedBlock& made : blocks) row.append(std::move(made.block), made.box);
        }
        Lmap made;
        Row finished = row.finish();
        if (!finished.empty()) made.insert_row(std::move(finished));
        return made;
      },
      choose_arithmetic(plan));
}

/// A row of points whose gaps along k1 are random, spacing on average; entries that meet and cancel.
class TileRunTest : public ::testing::TestWithParam<TileNumbers> {
 protected:
  void expect_literal(std::size_t count, std::int32_t spacing) {
    std::mt19937_64 random(count + static_cast<std::size_t>(spacing));
    PlannedStep::Points points;
    std::int32_t k1 = -1000;
    for (std::size_t i = 0; i < count; ++i) {
      k1 += 1 + static_cast<std::int32_t>(random() % static_cast<unsigned>(2 * spacing - 1));
      points.emplace_back(Lk::at(0, 0, k1), tile_quantity(GetParam(), random));
    }
    const PlannedStep step(points, {entry_of(1, 0), entry_of(2, 1), entry_of(-1, -spacing), entry_of(-2, 1),
                                    entry_of(1, 3 * spacing)});
    const LiteralStore expected = literal_row(step.algadd(), 0, literal_copy(step.lmap()), 0);
    ASSERT_TRUE(identical(in_parts(step.plan(), {0, TermPlaces::no_key}), expected));
    std::vector<std::int64_t> bounds{0};
    const std::int64_t last =
        TermPlaces(step.plan(), 0).key_behind(0) + std::int64_t{spacing} * static_cast<std::int64_t>(count);
    while (bounds.back() < last)
      bounds.push_back(bounds.back() + 1 +
                       static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(last / 4)));
    bounds.push_back(TermPlaces::no_key);
    ASSERT_TRUE(identical(in_parts(step.plan(), bounds), expected)) << "in parts";
  }
};

TEST_P(TileRunTest, EveryDensityGivesTheLiteralRow) {
  // From cells that are all hit to contributions that must be sorted.
  for (const std::int32_t spacing : {1, 3, 10, 40, 200, 1000, 5000, 50000}) {
    SCOPED_TRACE(spacing);
    ASSERT_NO_FATAL_FAILURE(expect_literal(6000, spacing));
  }
}

TEST_P(TileRunTest, FewPointsGiveTheLiteralRow) {
  for (const std::size_t count : {1U, 2U, 15U, 17U, 63U, 64U, 65U, 300U}) {
    for (const std::int32_t spacing : {1, 7, 100000}) {
      SCOPED_TRACE(spacing);
      ASSERT_NO_FATAL_FAILURE(expect_literal(count, spacing));
    }
  }
}

TEST_P(TileRunTest, EvenlySpacedPointsGiveTheLiteralRow) {
  std::mt19937_64 random(3);
  PlannedStep::Points points;
  std::int32_t k1 = 0;
  for (const std::int32_t spacing : {1, 2, 3, 2, 1, 4}) {
    for (int i = 0; i < 1500; ++i) {
      k1 += i % 100 == 99 ? 7 : spacing;
      points.emplace_back(Lk::at(0, 0, k1), tile_quantity(GetParam(), random));
    }
  }
  const PlannedStep step(points, {entry_of(1, 1), entry_of(2, -1), entry_of(-2, 200), entry_of(5, 0)});
  const LiteralStore expected = literal_row(step.algadd(), 0, literal_copy(step.lmap()), 0);
  EXPECT_TRUE(identical(in_parts(step.plan(), {0, TermPlaces::no_key}), expected));
}

TEST_P(TileRunTest, DenseAndSparsePartsMayFollowEachOther) {
  std::mt19937_64 random(2);
  PlannedStep::Points points;
  std::int32_t k1 = 0;
  for (const std::int32_t spacing : {1, 900, 2, 60000, 30, 1, 100000, 5}) {
    for (int i = 0; i < 3000; ++i) {
      k1 += spacing;
      points.emplace_back(Lk::at(0, 0, k1), tile_quantity(GetParam(), random));
    }
  }
  const PlannedStep step(points, {entry_of(1, 0), entry_of(2, 7), entry_of(-2, -60000), entry_of(5, 900)});
  const LiteralStore expected = literal_row(step.algadd(), 0, literal_copy(step.lmap()), 0);
  EXPECT_TRUE(identical(in_parts(step.plan(), {0, TermPlaces::no_key}), expected));
}

INSTANTIATE_TEST_SUITE_P(Numbers, TileRunTest, ::testing::ValuesIn(all_tile_numbers));

}  // namespace
}  // namespace kov
