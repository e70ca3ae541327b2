#include "batch/output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace kov {
namespace {

constexpr std::size_t block_size = 1 << 16;

std::string reason_text(int reason) { return reason == 0 ? "" : std::generic_category().message(reason); }

}  // namespace

void DescriptorOutput::write(std::string_view text) {
  if (failure_ != 0) return;
  buffer_ += text;
  if (buffer_.size() >= block_size) flush();
}

void DescriptorOutput::flush() {
  std::string_view rest = buffer_;
  while (!rest.empty() && failure_ == 0) {
    const ssize_t count = ::write(descriptor_, rest.data(), rest.size());
    if (count >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      failure_ = errno;
    }
  }
  buffer_.clear();
}

std::string DescriptorOutput::take_failure() {
  flush();
  return reason_text(std::exchange(failure_, 0));
}

FileOutput::FileOutput(const std::string& path)
    : descriptor_(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)),
      open_failure_(descriptor_ < 0 ? errno : 0),
      output_(descriptor_) {}

FileOutput::~FileOutput() {
  output_.flush();
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::string FileOutput::take_failure() {
  if (open_failure_ != 0) {
    output_.take_failure();
    return reason_text(open_failure_);
  }
  std::string failure = output_.take_failure();
  const int descriptor = std::exchange(descriptor_, -1);
  if (descriptor >= 0 && ::close(descriptor) != 0 && failure.empty()) failure = reason_text(errno);
  return failure;
}

}  // namespace kov
