#include "algadd/step_plan.h"

#include <gtest/gtest.h>

#include "planned_step.h"
#include "run_fixture.h"
#include "text/integers.h"

namespace kov {
namespace {

std::vector<std::int32_t> factors_in_order(const StepPlan& plan) {
  std::vector<std::int32_t> factors;
  for (const StepTerm& term : plan.terms) factors.push_back(term.p.re.nu());
  return factors;
}

AlgaddEntry entry_along(std::size_t position, std::int32_t offset, const cotyp& p = 1) {
  AlgaddEntry entry = entry_of(p);
  entry.offset.coo[position] = offset;
  return entry;
}

/// That every point of every term arrives where the entry of that factor sends it.
void expect_destinations(const StepPlan& plan, const std::vector<AlgaddEntry>& entries) {
  for (const StepTerm& term : plan.terms) {
    const AlgaddEntry& entry = entries.at(static_cast<std::size_t>(term.p.re.nu() - 1));
    const SourceStream& stream = plan.streams[term.stream];
    for (std::size_t b = 0; b < stream.block_count(); ++b) {
      for (std::size_t i = 0; i < stream.block(b).size(); ++i) {
        const std::uint64_t packed = stream.block(b).key(i);
        const Lk source = plan.frame.unpack(packed, plan.n - entry.offset.n());
        EXPECT_EQ(source.l(), entry.source_l());
        Lk expected = wrapping_add(source, entry.offset);
        expected.coo[l_position] = entry.ldest;
        EXPECT_EQ(plan.frame.unpack(packed + static_cast<std::uint64_t>(term.shift), plan.n), expected);
      }
    }
  }
}

TEST(PlanStep, LargerOffsetsComeFirst) {
  const std::vector<AlgaddEntry> entries = {entry_of(1, -1), entry_of(2, 3), entry_of(3, 0),
                                            entry_along(7, 5, 4), entry_along(7, -5, 5)};
  const PlannedStep step(points_on_k1(5), entries);
  EXPECT_EQ(factors_in_order(step.plan()), (std::vector{2, 4, 3, 5, 1}));
  expect_destinations(step.plan(), entries);
}

TEST(PlanStep, OfOneOffsetTheSmallerSourceLatticeComesFirstThenTheEntrysNumber) {
  PlannedStep::Points points = points_on_k1(3);
  points.emplace_back(Lk::at(-4, 0, 2), 7);
  const std::vector<AlgaddEntry> entries = {entry_of(1, 0, 0, 9), entry_of(2, 0, 0, -9),
                                            entry_of(3, 0, -4, 9), entry_of(4, 0, 0, 9)};
  const PlannedStep step(points, entries);
  EXPECT_EQ(factors_in_order(step.plan()), (std::vector{3, 1, 2, 4}));
  EXPECT_EQ(step.plan().streams.size(), 2U);
  expect_destinations(step.plan(), entries);
}

TEST(PlanStep, OfSeveralSourceRowsTheFirstComesFirst) {
  const std::vector<AlgaddEntry> entries = {entry_of(1, 5, 0, 0, 0), entry_of(2, -5, 0, 0, 1)};
  PlannedStep::Points points = points_on_k1(3);
  points.emplace_back(Lk::at(0, 1, 4), 1);
  const PlannedStep step(points, entries);
  ASSERT_EQ(step.plans()->size(), 3U);
  for (std::size_t n = 0; n < 3; ++n) {
    EXPECT_EQ(step.plans()->at(n).n, static_cast<std::int32_t>(n));
    expect_destinations(step.plans()->at(n), entries);
  }
  EXPECT_EQ(factors_in_order(step.plans()->at(0)), (std::vector{1}));
  EXPECT_EQ(factors_in_order(step.plans()->at(1)), (std::vector{2, 1}));
  EXPECT_EQ(factors_in_order(step.plans()->at(2)), (std::vector{2}));
}

TEST(PlanStep, RowsOfDestinationsWrap) {
  const PlannedStep step({{Lk::at(0, highest_int), 1}}, {entry_of(1), entry_of(2, 0, 0, 0, -1)});
  ASSERT_EQ(step.plans()->size(), 2U);
  EXPECT_EQ(step.plans()->at(0).n, lowest_int);
  EXPECT_EQ(step.plans()->at(1).n, highest_int - 1);
}

TEST(PlanStep, OnlyEntriesWithPointsAreTerms) {
  PlannedStep::Points points = points_on_k1(3);
  points.emplace_back(Lk::at(8, 0), 1);
  const std::vector<AlgaddEntry> entries = {entry_of(1, 0, 3), entry_of(2, 0, 9), entry_of(0),
                                            entry_of(4, 0, 8)};
  const PlannedStep step(points, entries);
  EXPECT_EQ(factors_in_order(step.plan()), (std::vector{4}));
  EXPECT_TRUE(PlannedStep(points, {}).plans()->empty());
  EXPECT_TRUE(PlannedStep({}, entries).plans()->empty());
  const PlannedStep none(points, {entry_of(1, 0, 3)});
  EXPECT_TRUE(none.plan().terms.empty()) << "lattice 3 is inside the box but has no point";
}

TEST(PlanStep, ARunSeldomNeedsAnotherFrame) {
  const std::vector<AlgaddEntry> entries = {entry_of(1, -1), entry_of(2, 1)};
  KeyFrame frame = *KeyFrame::for_box({Lk(), Lk()});
  WorkerPool workers(1);
  int frames = 0;
  for (std::int32_t steps = 0; steps < 1000; ++steps) {
    const KeyFrame row_frame = frame;
    Row row(0, row_frame);
    row.set(Lk::at(0, 0, -steps), 1);
    row.set(Lk::at(0, 0, steps), 1);
    Algadd algadd;
    algadd.set_entry(0, 0, entries[0]);
    algadd.set_entry(0, 1, entries[1]);
    const auto plans = plan_step(algadd, 0, 2, {&row}, {workers, [] {}});
    ASSERT_TRUE(plans);
    const KeyFrame& made = plans->at(0).frame;
    EXPECT_TRUE(made.covers({Lk::at(0, 0, -steps - 1), Lk::at(0, 0, steps + 1)}));
    frames += made == frame ? 0 : 1;
    frame = made;
  }
  EXPECT_GE(frames, 2);
  EXPECT_LE(frames, 1000 / 32) << "there is room for 32 steps at least";
}

TEST(PlanStep, KeysMayTake62Bits) {
  Lk far;
  far.coo[1] = (1 << 30) - 2;
  far.coo[2] = highest_int;
  Lk low;
  low.coo[2] = lowest_int;
  const std::vector<AlgaddEntry> entries = {entry_along(1, 1)};
  const PlannedStep step({{low, 1}, {far, 2}}, entries);
  ASSERT_TRUE(step.plans());
  EXPECT_EQ(step.plan().frame.total_bits(), most_step_key_bits);
  expect_destinations(step.plan(), entries);
  EXPECT_FALSE(PlannedStep({{low, 1}, {far, 2}}, {entry_along(1, 2)}).plans()) << "63 bits";
  EXPECT_FALSE(PlannedStep({{low, 1}, {far, 2}}, {entry_along(3, 1)}).plans()) << "63 bits";
}

TEST(PlanStep, NothingForWideRows) {
  Lk far = Lk::filled(highest_int);
  far.coo[0] = 0;
  far.coo[l_position] = 0;
  EXPECT_FALSE(PlannedStep({{Lk(), 1}, {far, 1}}, {entry_of(1)}).plans());
}

TEST(PlanStep, NothingWhereACoordinateMightWrap) {
  for (const std::size_t position : {1U, 30U}) {
    Lk high;
    high.coo[position] = highest_int - 1;
    EXPECT_TRUE(PlannedStep({{high, 1}}, {entry_along(position, 1)}).plans());
    EXPECT_FALSE(PlannedStep({{high, 1}}, {entry_along(position, 2)}).plans());
    Lk low;
    low.coo[position] = lowest_int + 1;
    EXPECT_TRUE(PlannedStep({{low, 1}}, {entry_along(position, -1)}).plans());
    EXPECT_FALSE(PlannedStep({{low, 1}}, {entry_along(position, -2)}).plans());
  }
}

TEST(PlanStep, LatticesMayLieAtBothEnds) {
  const std::vector<AlgaddEntry> entries = {entry_of(1, 1, lowest_int, highest_int),
                                            entry_of(2, -1, highest_int, lowest_int),
                                            entry_of(3, 0, lowest_int, lowest_int)};
  PlannedStep::Points points = points_on_k1(4, 1, 0, lowest_int);
  for (const auto& point : points_on_k1(3, 2, 0, highest_int)) points.push_back(point);
  const PlannedStep step(points, entries);
  ASSERT_TRUE(step.plans());
  EXPECT_EQ(step.plan().terms.at(0).shift, (std::int64_t{1} << 33) - 1)
      << "one step of k1 above the 32 bits of the lattices, and all of those";
  expect_destinations(step.plan(), entries);
}

}  // namespace
}  // namespace kov
