#include "widgets/help_browser.h"

#include <QEvent>
#include <QTextOption>

namespace kov {

HelpBrowser::HelpBrowser(const QHelpEngineCore& engine, QWidget* parent)
    : QTextBrowser(parent), engine_(engine) {
  // Narrow columns would break long keywords in two.
  setWordWrapMode(QTextOption::WordWrap);
}

QVariant HelpBrowser::loadResource(int, const QUrl& name) {
  const QUrl url = name.isRelative() ? source().resolved(name) : name;
  // No page leads outside the help, and nothing is ever fetched.
  return url.scheme() == "qthelp" ? engine_.fileData(url) : QByteArray();
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) reload();
}

}  // namespace kov
