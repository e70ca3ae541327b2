#pragma once

#include <QWidget>
#include <string>

class QLabel;

namespace kov {

/// A graph page: the label that shows wherever nothing is drawn.
class GraphTab final : public QWidget {
 public:
  explicit GraphTab(const QString& object_name, QWidget* parent = nullptr);

  void show_label(const std::string& text);

 private:
  QLabel* label_;
};

}  // namespace kov
