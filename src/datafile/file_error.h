#pragma once

#include <stdexcept>

namespace kov {

/// A file that cannot be opened, read, written or removed; the text names it and the reason.
class file_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kov
