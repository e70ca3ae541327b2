#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "graphs/qt/shown_graph.h"
#include "pictures/picture.h"

class QAction;
class QWidget;

namespace kov {

/// What a graph page needs of the program around it.
struct GraphServices {
  /// Runs an operation as commands are run: errors are shown, and nothing runs beside another operation.
  std::function<void(const std::string& name, const std::function<void()>& operation)> run;
  /// What a picture that is taken away says about its origin.
  std::function<std::vector<Note>()> notes;
  /// The name that a new file is offered, without extension.
  std::function<std::string()> file_name;
  /// What the page shows has changed; a calculation may have left captions of its own.
  std::function<void()> redrawn;
};

/// Gives an image the menu "Save picture", "Copy picture", "Save curves as CSV", whose items are enabled
/// while there is a drawing. The menu is the right mouse button's and the menu key's; Ctrl+C copies. Graph
/// and services outlive the image.
class GraphExport final {
 public:
  GraphExport(QWidget& image, ShownGraph& graph, GraphServices services);

  /// Enables or disables the items as the page is now.
  void follow();

 private:
  QAction* add_item(const char* name, const std::function<void()>& operation);
  /// The picture as kovbatch writes it. None when Break has left nothing to draw.
  std::optional<Picture> picture(int width, int height);
  void save_picture_as();
  void copy_picture();
  void save_table_as();

  QWidget& image_;
  ShownGraph& graph_;
  GraphServices services_;
  std::array<QAction*, 3> items_;
};

}  // namespace kov
