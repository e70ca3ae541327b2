#pragma once

#include <QMenu>
#include <filesystem>
#include <functional>

namespace kov {

/// The data files worked on last, newest first, as a submenu. They are kept in the settings of the person at
/// the program, not in any data file.
class RecentFiles final : public QMenu {
 public:
  static constexpr int longest = 9;

  using Open = std::function<void(const std::filesystem::path&)>;

  explicit RecentFiles(Open open, QWidget* parent = nullptr);

  /// The file becomes the newest, unless there is no name by which to find it again.
  void add(const std::filesystem::path& path);

 private:
  void fill();

  Open open_;
};

}  // namespace kov
