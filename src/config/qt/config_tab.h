#pragma once

#include <QWidget>

#include "config/config_grid.h"
#include "interact/messages.h"

namespace kov {

/// The Config page: the catalogue.
class ConfigTab final : public QWidget {
 public:
  /// Both must outlive the page.
  ConfigTab(ConfigGrid& Slconfig, Messages& messages, QWidget* parent = nullptr);
};

}  // namespace kov
