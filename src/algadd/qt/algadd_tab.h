#pragma once

#include <QList>
#include <QWidget>
#include <string>

#include "algadd/algadd_grid.h"
#include "interact/messages.h"

class QAction;
class QGroupBox;
class QLabel;

namespace kov {

class StringGrid;

/// The Algadd page: the current table, and below it, while it is open, the table menu.
class AlgaddTab final : public QWidget {
 public:
  /// A button for each command of the table menu. All must outlive the page.
  AlgaddTab(AlgaddGrid& SlAlgadd, Messages& messages, const QList<QAction*>& table_menu,
            QWidget* parent = nullptr);

  void show_menu(bool shown, const std::string& summary);

 private:
  QWidget* make_menu(const QList<QAction*>& table_menu);

  StringGrid* SlAlgadd_;
  QGroupBox* menu_ = nullptr;
  QLabel* summary_ = nullptr;
};

}  // namespace kov
