#pragma once

#include <QSize>
#include <QWidget>
#include <memory>

#include "graphs/qt/graph_export.h"
#include "graphs/qt/graph_image.h"
#include "graphs/qt/shown_graph.h"
#include "interact/messages.h"

namespace kov {

/// What both graph pages have in common: the image, with its menu.
class GraphTab : public QWidget {
 public:
  /// Everything around the image shows what the page holds now.
  virtual void follow();
  /// Before a calculation: it is to be for the image of a page of this size, be it shown already or not.
  void fit(QSize page);

 protected:
  /// The image is named "Gimage1" or the like. What is passed in must outlive the page.
  GraphTab(const char* image_name, std::unique_ptr<ShownGraph> graph, Messages& messages,
           const GraphServices& services, QWidget* parent);

  GraphImage& image() { return *image_; }

 private:
  std::unique_ptr<ShownGraph> graph_;
  GraphImage* image_;
  std::unique_ptr<GraphExport> export_;
};

}  // namespace kov
