#include "algadd/term_places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "planned_step.h"
#include "run_fixture.h"

namespace kov {
namespace {

/// The destinations of one term, ascending.
std::vector<std::int64_t> destinations_of(const StepPlan& plan, std::size_t term) {
  std::vector<std::int64_t> keys;
  const SourceStream& stream = plan.streams[plan.terms[term].stream];
  for (std::size_t b = 0; b < stream.block_count(); ++b) {
    for (std::size_t i = 0; i < stream.block(b).size(); ++i) {
      keys.push_back(static_cast<std::int64_t>(stream.block(b).key(i)) + plan.terms[term].shift);
    }
  }
  return keys;
}

/// The destinations of the pieces of one term.
std::vector<std::int64_t> destinations_in(const StepPlan& plan, std::size_t term,
                                          const std::vector<Piece>& pieces) {
  std::vector<std::int64_t> keys;
  for (const Piece& piece : pieces) {
    if (piece.term != term) continue;
    EXPECT_GT(piece.count, 0U);
    const Block& block = plan.streams[plan.terms[term].stream].block(piece.block);
    for (std::size_t i = piece.from; i < piece.from + piece.count; ++i) {
      keys.push_back(static_cast<std::int64_t>(block.key(i)) + plan.terms[term].shift);
    }
  }
  return keys;
}

/// Two lattices of several blocks each, read by three terms.
class TermPlacesTest : public ::testing::Test {
 protected:
  static PlannedStep::Points points() {
    PlannedStep::Points points = points_on_k1(9000, 3);
    for (const auto& point : points_on_k1(5000, 7, -400, 1)) points.push_back(point);
    return points;
  }

  /// What the terms have between two keys.
  std::vector<std::int64_t> between(std::size_t term, std::int64_t from, std::int64_t end) const {
    std::vector<std::int64_t> keys = destinations_of(plan, term);
    std::erase_if(keys, [&](std::int64_t key) { return key < from || key >= end; });
    return keys;
  }

  const PlannedStep step{points(), {entry_of(1, -40), entry_of(2, 500), entry_of(3, 1, 1)}};
  const StepPlan& plan = step.plan();
};

TEST_F(TermPlacesTest, EveryPointIsPassedOnce) {
  std::mt19937_64 random(3);
  for (const std::int64_t width : {20, 3000, 1000000}) {
    TermPlaces places(plan, 0);
    std::vector<Piece> pieces;
    for (std::int64_t key = places.next_key(); key != TermPlaces::no_key; key = places.next_key()) {
      const std::int64_t end = key + std::uniform_int_distribution<std::int64_t>(1, width)(random);
      places.pass(end, pieces);
      EXPECT_TRUE(std::is_sorted(pieces.begin(), pieces.end(),
                                 [](const Piece& a, const Piece& b) { return a.term < b.term; }));
      for (std::size_t term = 0; term < plan.terms.size(); ++term) {
        ASSERT_EQ(destinations_in(plan, term, pieces), between(term, key, end));
      }
    }
    places.pass(TermPlaces::no_key, pieces);
    EXPECT_TRUE(pieces.empty());
  }
}

TEST_F(TermPlacesTest, BeginsAtAnyKey) {
  const std::vector<std::int64_t> keys = destinations_of(plan, 1);
  for (const std::int64_t from : {std::int64_t{0}, keys[0], keys[4095] + 1, keys[4096], keys[7000] - 1,
                                  keys.back(), keys.back() + 1, TermPlaces::no_key}) {
    TermPlaces places(plan, from);
    std::vector<Piece> pieces;
    places.pass(TermPlaces::no_key, pieces);
    for (std::size_t term = 0; term < plan.terms.size(); ++term) {
      ASSERT_EQ(destinations_in(plan, term, pieces), between(term, from, TermPlaces::no_key)) << from;
    }
  }
}

TEST_F(TermPlacesTest, TellsTheKeyBehindSoManyPoints) {
  const std::int64_t from = destinations_of(plan, 0)[100];
  const TermPlaces places(plan, from);
  for (const std::size_t count : {0U, 1U, 4000U, 4995U, 4996U, 8000U, 8500U, 9000U}) {
    std::int64_t expected = TermPlaces::no_key;
    for (std::size_t term = 0; term < plan.terms.size(); ++term) {
      const std::vector<std::int64_t> left = between(term, from, TermPlaces::no_key);
      if (count < left.size()) expected = std::min(expected, left[count]);
    }
    EXPECT_EQ(places.key_behind(count), expected) << count;
  }
  EXPECT_EQ(places.key_behind(9001), TermPlaces::no_key);
  EXPECT_EQ(places.key_behind(0), places.next_key());
}

}  // namespace
}  // namespace kov
