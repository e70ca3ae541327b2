#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// A new folder under the system's folder for temporary files; while it lives it is the current
/// directory, and it goes with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// The names in it, hidden ones included, sorted.
  std::vector<std::string> names() const;

 private:
  std::filesystem::path before_;
  std::filesystem::path path_;
};

void write_text(const std::filesystem::path& path, std::string_view text);
std::string text_of(const std::filesystem::path& path);

}  // namespace kov
