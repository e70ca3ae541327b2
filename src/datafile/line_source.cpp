#include "datafile/line_source.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

#include "datafile/file_error.h"

namespace kov {

namespace {

constexpr std::size_t block_size = std::size_t{1} << 20;

UniqueFd open_for_reading(const std::filesystem::path& path) {
  UniqueFd file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.valid()) throw file_error("open", path, errno);
  struct stat facts {};
  if (::fstat(file.get(), &facts) != 0) throw file_error("open", path, errno);
  if (S_ISDIR(facts.st_mode)) throw file_error("open", path, EISDIR);
  return file;
}

}  // namespace

LineSource::LineSource(const std::filesystem::path& path)
    : path_(path),
      file_(open_for_reading(path)),
      capacity_(block_size),
      buffer_(std::make_unique_for_overwrite<char[]>(capacity_)) {}

bool LineSource::next(std::string_view& line) {
  // Characters of the line that are known to hold no LF: they are not searched again after a refill.
  std::size_t searched = 0;
  for (;;) {
    const char* const from = buffer_.get() + begin_ + searched;
    const auto* const hit = static_cast<const char*>(std::memchr(from, '\n', end_ - begin_ - searched));
    if (hit != nullptr) {
      const auto line_end = static_cast<std::size_t>(hit - buffer_.get());
      line = take(line_end, line_end + 1);
      return true;
    }
    if (at_end_of_file_) break;
    searched = end_ - begin_;
    make_room();
    fill();
  }
  if (begin_ == end_) return false;
  line = take(end_, end_);
  return true;
}

std::string_view LineSource::take(std::size_t line_end, std::size_t next_begin) {
  std::string_view line(buffer_.get() + begin_, line_end - begin_);
  if (line.ends_with('\r')) line.remove_suffix(1);
  begin_ = next_begin;
  return line;
}

void LineSource::make_room() {
  const std::size_t kept = end_ - begin_;
  if (kept == capacity_) {
    // Doubling keeps the time for a long line linear.
    auto larger = std::make_unique_for_overwrite<char[]>(2 * capacity_);
    std::memcpy(larger.get(), buffer_.get() + begin_, kept);
    buffer_ = std::move(larger);
    capacity_ *= 2;
  } else if (begin_ != 0) {
    std::memmove(buffer_.get(), buffer_.get() + begin_, kept);
  }
  begin_ = 0;
  end_ = kept;
}

void LineSource::fill() {
  ssize_t count = 0;
  do {
    count = ::read(file_.get(), buffer_.get() + end_, capacity_ - end_);
  } while (count < 0 && errno == EINTR);
  if (count < 0) throw file_error("read", path_, errno);
  at_end_of_file_ = count == 0;
  end_ += static_cast<std::size_t>(count);
}

}  // namespace kov
