#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "config/cphclass.h"
#include "graphs/curve_states.h"
#include "graphs/graph2_picture.h"
#include "graphs/graph_table.h"
#include "interact/user.h"
#include "lattice/lmap.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"
#include "sums/range_tables.h"

namespace kov {

/// What the Graph2 page shows and when it calculates: a colour map of the points inside one range, or a stack
/// of curves along x. The page in the window, pictures in files and lines of kovbatch are made from it.
///
/// The map belongs to an image of a certain size, since points are summed pixel by pixel. It is there from
/// the moment the page is shown until release().
class Graph2Page {
 public:
  /// What the page reads and, for the radio button and its parameter, writes.
  struct Sources {
    const Lmap& lmap;
    const RangeTables& tables;
    cphclass& cph;
    const CurveStates& states;
    /// 0 ... 9.
    int& radio_index;
    /// The data file's name for the title; empty without one.
    std::function<std::string()> file_name;
  };

  /// What the sources refer to must outlive the page.
  Graph2Page(Sources sources, User user);

  /// The tab was chosen: unless the radio buttons are as Graph2_RB_re_im_qa_qq_cntAt_12 says, they are set
  /// so; then the map is calculated and drawn.
  void shown();
  /// What the page is made of has changed: calculates and draws anew.
  void redraw();
  /// The states of the curves have changed: draws anew what was calculated.
  void draw_curves_anew();
  /// The data have another file: what is drawn gets its name.
  void file_renamed();
  /// A click on a radio button, 0 ... 9, which Graph2_RB_state_saving also stores in the parameter. Draws
  /// anew what is drawn.
  void radio(int index);
  /// Another page is shown: forgets the map.
  void release();

  /// The image that the map is to be calculated for, in pixels; 1000 x 700 at first.
  void set_image(ImageSize image) { image_ = image; }
  /// Likewise, as large as a picture of this size leaves it: before shown(), so that picture() need not
  /// calculate again.
  void fit(int width, int height, const TextMeasure& measure);
  /// The whole picture: title, axes, legend and image, or the label when nothing is drawn. Calculates unless
  /// that has been done for this size since release(). While a calculation runs nothing is drawn.
  Picture picture(int width, int height, const TextMeasure& measure);

  /// Why nothing is drawn; empty while something is.
  const std::string& label() const { return label_; }
  /// "SR1:" or "SR1/cnt:": the caption of the radio buttons of a range, 0 or 1.
  std::string caption(std::size_t range) const;
  /// What is drawn; null when nothing is.
  const Graph2Drawing* drawing() const { return drawn() ? drawing_.get() : nullptr; }
  /// The y of a curve, counted from 0; none for a curve that is not drawn.
  std::optional<std::int32_t> y_of_curve(int curve) const;
  /// The numbers behind the picture: x and each curve, or x, y and value of each pixel of a map.
  GraphTable table() const;

  /// Called whenever what the page shows may have changed.
  void set_changed(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  /// What is drawn is complete, and the label empty.
  bool drawn() const { return calculated_ && label_.empty(); }
  bool Graph2_deviating_RB_state() const;
  void choose_radio(int index);
  /// Gives the label.
  std::string calculate_and_draw();
  std::string calculate();
  std::string draw();
  std::string fail(const std::string& text);

  Sources sources_;
  User user_;
  ImageSize image_{1000, 700};
  std::unique_ptr<Graph2Drawing> drawing_;
  /// The image of the calculation that has ended since release(), be it without a map; none before.
  std::optional<ImageSize> calculated_;
  bool calculating_ = false;
  std::string label_;
  std::function<void()> changed_;
};

}  // namespace kov
