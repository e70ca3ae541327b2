#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "config/cphclass.h"
#include "graphs/calc_gc.h"
#include "graphs/graph1_view.h"
#include "graphs/graph_table.h"
#include "interact/messages.h"
#include "interact/progress.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"
#include "sums/range_tables.h"

namespace kov {

/// The Graph1 page without its window: when it calculates, what it draws, and the texts around the drawing.
class Graph1Page {
 public:
  /// What the page draws from.
  struct Sources {
    const Lmap& lmap;
    const RangeTables& tables;
    const cphclass& cph;
    const G1Checks& checked;
    /// Graph1_oplot_if_2_curves, as the label Label_g1_oplot toggles it.
    const bool& oplot;
    /// The data file's name for the title, empty without one.
    std::function<std::string()> file_name;
  };

  /// Sources, messages and progress must outlive the page.
  Graph1Page(Sources sources, Messages& messages, Progress& progress)
      : sources_(std::move(sources)), messages_(messages), progress_(progress) {}

  /// The tab was chosen, or what is shown is to follow the store, the ranges or a parameter: calculates
  /// and draws.
  void show();
  /// A check box was clicked: draws, and calculates before unless Graph1_quick_xscale_r12_common makes the
  /// binning independent of the boxes. Without a calculation to draw from it calculates in any case.
  void check_box_changed();
  /// The label Label_g1_oplot was clicked: draws what is calculated.
  void oplot_changed() { draw(); }

  /// The data have another file: what is drawn gets its name.
  void file_renamed();

  /// The image of the next calculation, in pixels; 1000 x 700 at first.
  void set_image_size(int width, int height);
  /// Likewise, as the part of a picture of this size that title, legend and axes leave.
  void fit(int width, int height, const TextMeasure& measure);

  /// The page as a picture: the drawing, or the label where nothing is drawn. A page that has never been
  /// shown is shown first. Calculates anew when this size gives the image another width than that of the last
  /// calculation, without telling again how many curves an oplot takes; who is about to show the page calls
  /// fit() first, so that it is calculated once. While a calculation runs nothing is drawn.
  Picture picture(int width, int height, const TextMeasure& measure);
  /// The numbers behind it: a row for each column that holds a point of a range that is drawn. Columns: the
  /// smallest x value, then every curve that is drawn. Empty where nothing is drawn.
  GraphTable table() const;

  /// Whether there is a drawing; the label shows otherwise.
  bool drawn() const;
  /// The text behind the image; empty while there is nothing to say.
  std::string label() const;
  /// What heads the drawing: file, range table and ranges.
  std::string title() const { return view().title(); }
  /// The caption of the check boxes of a range, 0 or 1: "SR1:", "SR2/cnt:".
  std::string group_caption(std::size_t range) const;
  /// The last calculation.
  const G1Par& par() const { return par_; }

  /// Called whenever anything that the page shows may have changed.
  void set_changed(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  void calculate();
  void draw();
  void tell_changed() const {
    if (changed_) changed_();
  }
  bool was_calculated() const { return calculated_width_ >= 0; }
  bool fits_calculation() const;
  G1View view() const;
  bool any_checked() const;

  Sources sources_;
  Messages& messages_;
  Progress& progress_;
  int width_ = 1000;
  int height_ = 700;
  /// Those of the last calculation; negative before the first one.
  int calculated_width_ = -1;
  int calculated_height_ = -1;
  G1Par par_;
  G1Origin origin_;
  G1Outcome outcome_ = G1Outcome::store_empty;
  bool calculating_ = false;
  std::function<void()> changed_;
};

}  // namespace kov
