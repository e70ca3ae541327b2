#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "config/cphclass.h"
#include "graphs/curve_states.h"
#include "interact/grid_model.h"
#include "interact/user.h"

namespace kov {

/// Slg2a: a column for each curve of the stacked graph, in which a person chooses whether and in which colour
/// the curve stands out. A click makes it blue, or unselects it when it is blue; a double click makes it red;
/// the right button asks for the state of all. The keys 0, 1 and 2 give the selected curve that state.
class Slg2aGrid final : public GridModel {
 public:
  /// What is passed in must outlive the grid.
  Slg2aGrid(CurveStates& states, const cphclass& cph, User user) : states_(states), cph_(cph), user_(user) {}

  int column_count() const override { return 1 + curves(); }
  int row_count() const override { return 3; }
  /// The number of the curve, its y where it is drawn, and how.
  std::string text(GridCell cell) const override;
  int default_column_width() const override { return 48; }
  void show() override { changed(); }
  bool key(const GridKey& key) override;

  /// Asked for the y of a curve, counted from 0, which may be none.
  void set_y_of_curve(std::function<std::optional<std::int32_t>(int curve)> y_of_curve) {
    y_of_curve_ = std::move(y_of_curve);
  }
  /// Called when states have changed: the curves are to be drawn again.
  void set_states_changed(std::function<void()> states_changed) {
    states_changed_ = std::move(states_changed);
  }

 protected:
  void clicked(GridClick click, GridCell cell) override;

 private:
  int curves() const { return curve_count(cph_.kmi("Graph2a_ny")); }
  std::int8_t& state_of_column(int column) { return states_[static_cast<std::size_t>(column - 1)]; }
  void choose_all();
  void states_changed() const;

  CurveStates& states_;
  const cphclass& cph_;
  User user_;
  std::function<std::optional<std::int32_t>(int curve)> y_of_curve_;
  std::function<void()> states_changed_;
};

}  // namespace kov
