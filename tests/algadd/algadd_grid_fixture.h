#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "algadd/algadd_grid.h"
#include "run_fixture.h"
#include "support/recording_messages.h"

namespace kov {

inline constexpr int p_row = 1;
inline constexpr int ldest_row = 2;
inline constexpr int l_row = 3;
inline constexpr int n_row = 4;
inline constexpr int k1_row = 5;

/// SlAlgadd over empty tables, and what it told its owner.
class AlgaddGridTest : public ::testing::Test {
 protected:
  AlgaddGridTest() { cph_.InitPrgPar({}); }

  void SetUp() override {
    grid_.set_tables_changed([this] { ++table_changes_; });
    grid_.set_entry_selected([this](int entry) { selected_entries_.push_back(entry); });
    grid_.set_show_menu([this](bool shown) { menu_.push_back(shown); });
  }

  void press(GridCell cell, const GridKey& key) {
    grid_.select(cell);
    grid_.press(key);
  }

  /// Types a text into a cell, character by character, and leaves the grid.
  void type(GridCell cell, const std::string& text) {
    grid_.select(cell);
    for (const char c : text) grid_.press(GridKey::of(c));
    grid_.leave();
  }

  RecordingMessages messages_;
  cphclass cph_{messages_};
  Algadd algadd_;
  AlgaddGrid grid_{algadd_, cph_, messages_};
  int table_changes_ = 0;
  std::vector<int> selected_entries_;
  std::vector<bool> menu_;
};

}  // namespace kov
