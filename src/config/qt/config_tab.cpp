#include "config/qt/config_tab.h"

#include <QVBoxLayout>

#include "widgets/qt_text.h"
#include "widgets/string_grid.h"

namespace kov {

ConfigTab::ConfigTab(ConfigGrid& Slconfig, Messages& messages, QWidget* parent) : QWidget(parent) {
  auto* grid = new StringGrid(Slconfig, messages);
  grid->setObjectName("Slconfig");
  grid->setAccessibleName(tr("Program parameters"));
  grid->set_tool_tip([&Slconfig](GridCell cell) { return to_qt(Slconfig.hint(cell)); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid);
  setFocusProxy(grid);
}

}  // namespace kov
