#include "graphs/qt/graph_tab.h"

#include <QLayout>
#include <utility>

namespace kov {

GraphTab::GraphTab(const char* image_name, std::unique_ptr<ShownGraph> graph, Messages& messages,
                   const GraphServices& services, QWidget* parent)
    : QWidget(parent), graph_(std::move(graph)), image_(new GraphImage(*graph_, messages, this)) {
  image_->setObjectName(image_name);
  export_ = std::make_unique<GraphExport>(*image_, *graph_, services);
  setFocusProxy(image_);
}

void GraphTab::follow() { export_->follow(); }

void GraphTab::fit(QSize page) {
  follow();
  // A page that is not shown yet has no size of its own.
  if (!isVisible()) resize(page);
  layout()->activate();
  image_->fit();
}

}  // namespace kov
