#pragma once

#include <QHelpEngineCore>
#include <QTextBrowser>

namespace kov {

/// Shows pages of the help, which it takes out of the help file. The engine outlives it.
class HelpBrowser final : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpBrowser(const QHelpEngineCore& engine, QWidget* parent = nullptr);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  /// The colours of a page are those of the palette with which it was read.
  void changeEvent(QEvent* event) override;

 private:
  const QHelpEngineCore& engine_;
};

}  // namespace kov
