#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace kov {

TemporaryFolder::TemporaryFolder() : before_(std::filesystem::current_path()) {
  std::string name = (std::filesystem::temp_directory_path() / "kov-test-XXXXXX").string();
  path_ = ::mkdtemp(name.data());
  std::filesystem::current_path(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::filesystem::current_path(before_);
  std::filesystem::remove_all(path_);
}

std::vector<std::string> TemporaryFolder::names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(path_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void write_text(const std::filesystem::path& path, std::string_view text) {
  // A new file is not flushed when it is closed, as one that was truncated is on some file systems.
  std::filesystem::remove(path);
  std::ofstream file(path, std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
}

std::string text_of(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kov
