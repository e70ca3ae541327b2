#include <gtest/gtest.h>

#include <array>
#include <random>

#include "run_fixture.h"
#include "step_world.h"
#include "support/literal_run.h"
#include "text/integers.h"

namespace kov {
namespace {

/// Small random worlds in which things meet: few lattices, few coordinates, entries that cancel.
class World {
 public:
  explicit World(std::uint64_t seed) : random_(seed) {
    lattices_ = integer(1, 5);
    varying_ = integer(0, 6);
    origin_ = integer(0, 9) == 0 ? (integer(0, 1) == 0 ? lowest_int : highest_int) : 0;
  }

  std::int32_t integer(std::int32_t low, std::int32_t high) {
    return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
  }

  cotyp quantity() {
    switch (integer(0, 9)) {
      case 0:
      case 1:
        return {integer(-3, 3), integer(1, 4), integer(-3, 3), integer(1, 4)};
      case 2:
        return cotyp::floating(0.1 * integer(-9, 9), 0.3 * integer(-2, 2));
      case 3:
        return {integer(2147480000, 2147483646), integer(1, 9), 0, 1};
      case 4:
        return {ratyp(integer(-5, 5), 3), ratyp::floating(0.7 * integer(-3, 3))};
      case 5:
        return integer(0, 19) == 0 ? cotyp::floating(1e120, -1e120) : cotyp::floating(1e-120, 0);
      default:
        return integer(-2, 2);
    }
  }

  Lk key(std::int32_t n) {
    Lk key = Lk::at(integer(0, lattices_ - 1), n);
    for (int k = 1; k <= varying_; ++k) {
      key.coo[position(k)] = wrapping_add(origin_, integer(-1, 1));
    }
    return key;
  }

  AlgaddEntry entry() {
    const bool plain = integer(0, 3) != 0;
    Lk offset = Lk::at(integer(0, lattices_ - 1), plain ? 1 : integer(-2, 3));
    for (int k = 1; k <= varying_; ++k) offset.coo[position(k)] = integer(-1, 1);
    return {.p = quantity(), .ldest = integer(0, lattices_ - 1), .offset = offset};
  }

  void fill(Algadd& algadd, int table) {
    const int count = integer(1, 8);
    for (int i = 0; i < count; ++i) {
      const AlgaddEntry made = entry();
      const int place = integer(0, 9) == 0 ? 255 - i : 2 * i;
      algadd.set_entry(table, place, made);
      if (integer(0, 4) != 0) continue;
      AlgaddEntry cancelling = made;
      cancelling.p = cotyp(0) - made.p;
      algadd.set_entry(table, 2 * i + 1, cancelling);
    }
  }

  LiteralRun plan() {
    LiteralRun plan;
    plan.table = integer(0, 15);
    plan.mode = static_cast<RunMode>(integer(0, 3));
    plan.steps = integer(1, 4);
    if (integer(0, 2) == 0) {
      plan.barrier = {.ldest1 = integer(-1, 2),
                      .ldest2 = integer(0, 2),
                      .k1 = integer(-1, 1),
                      .k1add = integer(-1, 1),
                      .multp = cotyp(integer(-1, 3), 2, 0, 1)};
    }
    plan.tracking_kilobytes = integer(0, 4);
    plan.maximum_kilobytes = integer(0, 9) == 0 ? integer(0, 5) : 1000;
    plan.percent = integer(0, 100);
    plan.also_till_row_0 = integer(0, 1) == 0;
    for (int boxes = integer(0, 2); boxes > 0; --boxes) plan.keep.push_back(box());
    return plan;
  }

  void fill(Lmap& lmap) {
    const std::int32_t first_row = integer(0, 19) == 0 ? highest_int - 4 : integer(-2, 1);
    for (int points = integer(1, 12); points > 0; --points) {
      const Lk where = key(first_row + integer(0, 2));
      lmap.set(where, quantity());
    }
  }

 private:
  KeyBox box() {
    KeyBox box{Lk::filled(lowest_int), Lk::filled(highest_int)};
    box.min.coo[position(1)] = wrapping_add(origin_, integer(-1, 0));
    box.max.coo[position(1)] = wrapping_add(origin_, integer(0, 1));
    if (integer(0, 1) == 0) box.min.coo[l_position] = integer(0, lattices_ - 1);
    return box;
  }

  /// The varying coordinates lie apart: k1, k6, k11, ...
  static std::size_t position(int k) { return static_cast<std::size_t>(5 * k - 4); }

  std::mt19937_64 random_;
  std::int32_t lattices_;
  std::int32_t varying_;
  std::int32_t origin_;
};

class RunAgainstLiteral : public RunFixture {
 protected:
  void set_parameters(const LiteralRun& plan) {
    set("Obarr0_ldest1", plan.barrier.ldest1);
    set("Obarr1_ldest2", plan.barrier.ldest2);
    set("Obarr1_k1", plan.barrier.k1);
    set("Obarr1_k1_of_add_ldest2", plan.barrier.k1add);
    const cotyp percent = plan.barrier.multp * cotyp(100);
    set("Obarr1_multp_ldest2", percent.re.nu());
    set("Algadd_TM_DelSmallestAfterKB", static_cast<std::int32_t>(plan.tracking_kilobytes));
    set("MaxAllowedMemOccupationInKB", static_cast<std::int32_t>(plan.maximum_kilobytes));
    set("DelSmallPercent_Default", plan.percent);
    set("Algadd_TM_DelAlsoTillRow0", plan.also_till_row_0 ? 1 : 0);
    set("Algadd_TM_BeepOnDelSmallest", 1);
    set("Algadd_del_p0_entries", plan.table % 2);
  }

  /// What the transcript tells of the run.
  LiteralOutcome outcome() const {
    LiteralOutcome told;
    told.steps = algadd.last_run.steps;
    for (const std::string& report : transcript) {
      if (report.find("Stop, because more memory used") != std::string::npos) told.out_of_memory_bound = true;
      if (report.find("floating point overflow") != std::string::npos) told.overflow = true;
      if (report == "beep") ++told.deletions;
    }
    if (told.overflow) --told.deletions;
    return told;
  }

  /// A new world; the plan of its run is ready to be carried out.
  LiteralRun make_world(std::uint64_t seed) {
    World world(seed);
    const LiteralRun plan = world.plan();
    set_parameters(plan);
    keep = plan.keep;
    algadd.reset();
    world.fill(algadd, plan.table);
    lmap.clear();
    while (lmap.empty()) world.fill(lmap);
    transcript.clear();
    return plan;
  }
};

/// What the runs of a test have reached.
struct RunsMet {
  std::array<int, 4> modes{};
  LiteralOutcome outcome;
  int barriers = 0;

  void add(const LiteralRun& plan, const LiteralOutcome& reached) {
    ++modes[static_cast<std::size_t>(plan.mode)];
    barriers += plan.barrier.ldest1 != 0 ? 1 : 0;
    outcome.steps += reached.steps;
    outcome.deletions += reached.deletions;
    outcome.out_of_memory_bound |= reached.out_of_memory_bound;
    outcome.overflow |= reached.overflow;
  }
};

TEST_F(RunAgainstLiteral, EqualsItInEveryBitWithAnyNumberOfThreads) {
  RunsMet met;
  for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
    SCOPED_TRACE(seed);
    // Parts of a few contributions each, so that the threads share rows as small as these.
    const PartSize part{.smallest = 1 + seed % 10, .largest = 10 + seed % 10};
    const LiteralRun plan = make_world(seed);
    LiteralStore literal = literal_copy(lmap);
    const LiteralOutcome expected = literal_run(algadd, literal, plan);
    met.add(plan, expected);
    // Every fourth world with each number, the others with one of them.
    for (const std::size_t i : {0U, 1U, 2U, 3U}) {
      if (seed % 16 >= 4 && seed % 4 != i) continue;
      const int threads = std::array{1, 2, 3, 7}[i];
      make_world(seed);
      ASSERT_TRUE(run(plan.steps, plan.mode, plan.table, {}, {.count = threads, .part = part})) << threads;
      ASSERT_TRUE(identical(lmap, literal)) << threads;
      ASSERT_EQ(outcome(), expected) << threads;
    }
  }
  for (const int runs : met.modes) EXPECT_GT(runs, 500);
  EXPECT_GT(met.barriers, 500);
  EXPECT_GT(met.outcome.steps, 5000);
  EXPECT_GT(met.outcome.deletions, 500);
  EXPECT_TRUE(met.outcome.out_of_memory_bound && met.outcome.overflow)
      << "the worlds must reach every ending";
}

}  // namespace
}  // namespace kov
