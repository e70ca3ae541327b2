#include "graphs/qt/graph_tab.h"

#include <QLabel>
#include <QVBoxLayout>

#include "widgets/qt_text.h"

namespace kov {

GraphTab::GraphTab(const QString& object_name, QWidget* parent) : QWidget(parent), label_(new QLabel) {
  label_->setObjectName(object_name);
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label_);
}

void GraphTab::show_label(const std::string& text) { label_->setText(to_qt(text)); }

}  // namespace kov
