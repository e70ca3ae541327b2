#pragma once

#include <string>

#include "graphs/graph1_page.h"
#include "graphs/graph2_page.h"
#include "graphs/graph_table.h"
#include "pictures/picture.h"
#include "pictures/text_measure.h"

namespace kov {

/// Either graph page, as its image and whoever takes a picture away see it.
class ShownGraph {
 public:
  virtual ~ShownGraph() = default;

  /// The next calculation is for a picture of this size.
  virtual void fit(int width, int height, const TextMeasure& measure) = 0;
  /// Calculates when the last calculation was for another size.
  virtual Picture picture(int width, int height, const TextMeasure& measure) = 0;
  /// Whether there is a drawing; the label shows otherwise.
  virtual bool drawn() const = 0;
  virtual std::string label() const = 0;
  virtual GraphTable table() const = 0;
};

class ShownGraph1 final : public ShownGraph {
 public:
  explicit ShownGraph1(Graph1Page& page) : page_(page) {}

  void fit(int width, int height, const TextMeasure& measure) override { page_.fit(width, height, measure); }
  Picture picture(int width, int height, const TextMeasure& measure) override {
    return page_.picture(width, height, measure);
  }
  bool drawn() const override { return page_.drawn(); }
  std::string label() const override { return page_.label(); }
  GraphTable table() const override { return page_.table(); }

 private:
  Graph1Page& page_;
};

class ShownGraph2 final : public ShownGraph {
 public:
  explicit ShownGraph2(Graph2Page& page) : page_(page) {}

  void fit(int width, int height, const TextMeasure& measure) override { page_.fit(width, height, measure); }
  Picture picture(int width, int height, const TextMeasure& measure) override {
    return page_.picture(width, height, measure);
  }
  bool drawn() const override { return page_.drawing() != nullptr; }
  std::string label() const override { return page_.label(); }
  GraphTable table() const override { return page_.table(); }

 private:
  Graph2Page& page_;
};

}  // namespace kov
