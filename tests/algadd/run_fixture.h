#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "algadd/algadd.h"
#include "algadd/algadd_run.h"
#include "config/cphclass.h"
#include "interact/scripted_user.h"
#include "lattice/lmap.h"

namespace kov {

/// A progress box that keeps what it was told, line by line, and can fail or react on the way.
class HookedProgress final : public Progress {
 public:
  std::vector<std::string> log;
  std::function<void()> on_headline = [] {};
  std::function<void()> on_box = [] {};
  std::function<void()> on_breath = [] {};
  /// Asked at every check.
  std::function<bool()> pressed = [] { return false; };
  int breaths = 0;
  int checks = 0;

  void breathe() override {
    ++breaths;
    on_breath();
  }

  void show_grey(bool grey) override { log.emplace_back(grey ? "grey" : "own colour"); }

  std::vector<std::string> headlines() const;

 protected:
  void show_box(const Box& box) override;
  void hide_box() override { log.emplace_back("hide"); }
  bool poll_break() override {
    ++checks;
    return pressed();
  }
  void show_headline(const std::string& text) override {
    log.push_back("headline: " + text);
    on_headline();
  }
  void show_caption(const std::string& text) override { log.push_back("caption: " + text); }
};

/// An entry from lattice l to ldest with the offset of n and of k1.
AlgaddEntry entry_of(const cotyp& p, std::int32_t dk1 = 0, std::int32_t l = 0, std::int32_t ldest = 0,
                     std::int32_t dn = 1);

/// Everything that a run needs, and a transcript of what it said.
class RunFixture : public ::testing::Test {
 protected:
  RunFixture();

  /// Sets a parameter without regard to its bounds, so that small limits can be met by small stores.
  void set(const std::string& keyword, std::int32_t value);

  /// Entries 0, 1, ... of table 0.
  void make_table(const std::vector<AlgaddEntry>& entries, int table = 0);

  /// Table 0: a step to the left and one to the right along k1, each of weight 1.
  void walking_table();
  /// Table 0: one entry that copies every point of lattice 0 into the next row.
  void copying_table();
  /// Fills the store with rows 0 ... last, each of so many points k1 + 1 from k1 = 0 on.
  void make_rows(std::int32_t last, std::int32_t points);
  /// No headline, deletion or stop until a test sets a limit.
  void lift_limits();

  bool run(std::int32_t steps, RunMode mode = RunMode::keep, int table = 0, const RunClock& clock = {},
           const RunThreads& threads = {});

  std::vector<std::string> transcript;
  ScriptedUser scripted;
  HookedProgress progress;
  cphclass cph;
  Algadd algadd;
  Lmap lmap;
  std::vector<KeyBox> keep;
};

}  // namespace kov
