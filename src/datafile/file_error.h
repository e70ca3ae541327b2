#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace kov {

/// A file that cannot be opened, read, written or removed; the text names it and the reason.
class file_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  /// "Cannot ACTION PATH:\nREASON", the reason from an error number of the operating system.
  file_error(const std::string& action, const std::filesystem::path& path, int error_number)
      : std::runtime_error("Cannot " + action + " " + path.string() + ":\n" +
                           std::generic_category().message(error_number)) {}
};

}  // namespace kov
