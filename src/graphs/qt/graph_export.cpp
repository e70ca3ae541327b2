#include "graphs/qt/graph_export.h"

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMimeData>
#include <QSaveFile>
#include <QWidget>
#include <stdexcept>
#include <utility>

#include "graphs/qt/picture_size_box.h"
#include "pictures/qt/picture_clipboard.h"
#include "pictures/qt/picture_files.h"
#include "pictures/qt/picture_font.h"
#include "widgets/dialogs.h"

namespace kov {
namespace {

constexpr std::array<FileKind, 2> picture_kinds{{{"PNG picture", "png"}, {"SVG picture", "svg"}}};
constexpr std::array<FileKind, 1> table_kinds{{{"Comma-separated values", "csv"}}};

/// Whole or not at all.
void write_file(const std::filesystem::path& file, const std::string& text) {
  QSaveFile target(QFile::decodeName(file.c_str()));
  const auto size = static_cast<qint64>(text.size());
  if (target.open(QIODevice::WriteOnly) && target.write(text.data(), size) == size && target.commit()) return;
  throw std::runtime_error("Cannot save " + file.string() + ":\n" + target.errorString().toStdString());
}

}  // namespace

GraphExport::GraphExport(QWidget& image, ShownGraph& graph, GraphServices services)
    : image_(image),
      graph_(graph),
      services_(std::move(services)),
      items_{add_item("Save picture", [this] { save_picture_as(); }),
             add_item("Copy picture", [this] { copy_picture(); }),
             add_item("Save curves as CSV", [this] { save_table_as(); })} {
  items_[1]->setShortcut(QKeySequence::Copy);
  items_[1]->setShortcutContext(Qt::WidgetShortcut);
  image_.setContextMenuPolicy(Qt::ActionsContextMenu);
  follow();
}

QAction* GraphExport::add_item(const char* name, const std::function<void()>& operation) {
  auto* item = new QAction(QString::fromLatin1(name), &image_);
  item->setObjectName(image_.objectName() + "/" + name);
  QObject::connect(item, &QAction::triggered, &image_,
                   [this, name, operation] { services_.run(name, operation); });
  image_.addAction(item);
  return item;
}

void GraphExport::follow() {
  for (QAction* item : items_) item->setEnabled(graph_.drawn());
}

std::optional<Picture> GraphExport::picture(int width, int height) {
  Picture picture = graph_.picture(width, height, FontMeasure());
  if (!graph_.drawn()) return std::nullopt;
  picture.notes = services_.notes();
  return picture;
}

void GraphExport::save_picture_as() {
  const auto size = ask_picture_size(image_.window(), image_.size());
  if (!size) return;
  const auto file =
      choose_file_to_export(image_.window(), "Save picture", services_.file_name(), picture_kinds);
  if (!file) return;
  if (const auto drawn = picture(size->width(), size->height())) save_picture(*drawn, *file);
}

void GraphExport::copy_picture() {
  if (const auto drawn = picture(image_.width(), image_.height())) {
    QGuiApplication::clipboard()->setMimeData(picture_mime_data(*drawn).release());
  }
}

void GraphExport::save_table_as() {
  const auto file =
      choose_file_to_export(image_.window(), "Save curves as CSV", services_.file_name(), table_kinds);
  if (file) write_file(*file, csv_text(graph_.table()));
}

}  // namespace kov
