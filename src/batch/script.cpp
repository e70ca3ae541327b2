#include "batch/script.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "batch/interrupt.h"
#include "text/integers.h"
#include "text/tokens.h"

namespace kov {
namespace {

/// A descriptor that is closed with its scope; standard input stays open.
class Input {
 public:
  explicit Input(const std::string& script) : standard_(script == "-") {
    descriptor_ = standard_ ? STDIN_FILENO : ::open(script.c_str(), O_RDONLY | O_CLOEXEC);
  }
  ~Input() {
    if (!standard_ && descriptor_ >= 0) ::close(descriptor_);
  }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  int descriptor() const { return descriptor_; }

 private:
  bool standard_;
  int descriptor_;
};

[[noreturn]] void fail(const std::string& script, int reason) {
  throw script_error("script " + script + " cannot be read: " + std::generic_category().message(reason));
}

}  // namespace

std::string SourceLine::place() const {
  return script + ":" + int_text(static_cast<std::int64_t>(number)) + ": " + text;
}

std::vector<SourceLine> script_lines(const std::string& script, std::string_view text) {
  constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
  if (text.substr(0, byte_order_mark.size()) == byte_order_mark) text.remove_prefix(byte_order_mark.size());
  std::vector<SourceLine> lines;
  std::size_t number = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    ++number;
    if (!line.empty() && line.front() != ';') lines.push_back({script, number, std::string(line)});
  }
  return lines;
}

std::string read_script(const std::string& script) {
  const Input input(script);
  if (input.descriptor() < 0) fail(script, errno);
  std::string text;
  std::array<char, 65536> block{};
  while (true) {
    const ssize_t count = ::read(input.descriptor(), block.data(), block.size());
    if (count > 0) {
      text.append(block.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || interrupted()) {
      return text;
    } else if (errno != EINTR) {
      fail(script, errno);
    }
  }
}

}  // namespace kov
