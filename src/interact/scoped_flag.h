#pragma once

namespace kov {

/// Raises a flag for the length of a scope, whatever ends it: a flag that an exception left raised would
/// hold up everything that waits for it.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = false; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
};

}  // namespace kov
