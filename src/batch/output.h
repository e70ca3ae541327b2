#pragma once

#include <string>
#include <string_view>

namespace kov {

/// Where printed text goes. A device that fails throws nothing, since the text may reach it only later,
/// with other text: the first failure is kept, what is written behind it is dropped, and whoever wrote
/// asks for it by take_failure. Memory that runs out passes on as std::bad_alloc.
class Output {
 public:
  virtual ~Output() = default;

  virtual void write(std::string_view text) = 0;
  virtual void flush() {}
  /// The reason of the first failure since the last call; empty without one.
  virtual std::string take_failure() { return {}; }
};

/// Writes to a file descriptor in blocks.
class DescriptorOutput final : public Output {
 public:
  /// The descriptor stays the caller's.
  explicit DescriptorOutput(int descriptor) : descriptor_(descriptor) {}
  ~DescriptorOutput() override { flush(); }
  DescriptorOutput(const DescriptorOutput&) = delete;
  DescriptorOutput& operator=(const DescriptorOutput&) = delete;

  void write(std::string_view text) override;
  void flush() override;
  std::string take_failure() override;

 private:
  int descriptor_;
  int failure_ = 0;
  std::string buffer_;
};

/// Writes a new file over what stood there. A failure to open or to close it counts as one of writing.
class FileOutput final : public Output {
 public:
  explicit FileOutput(const std::string& path);
  ~FileOutput() override;
  FileOutput(const FileOutput&) = delete;
  FileOutput& operator=(const FileOutput&) = delete;

  void write(std::string_view text) override { output_.write(text); }
  void flush() override { output_.flush(); }
  /// Finishes the file: nothing can be written afterwards.
  std::string take_failure() override;

 private:
  int descriptor_;
  int open_failure_;
  DescriptorOutput output_;
};

}  // namespace kov
