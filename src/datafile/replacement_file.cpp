#include "datafile/replacement_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string>
#include <system_error>

#include "datafile/file_error.h"

namespace kov {

namespace fs = std::filesystem;

namespace {

constexpr const char* saving = "save";

/// The file that a chain of symbolic links leads to, whether it exists or not.
fs::path behind_links(fs::path path) {
  constexpr int longest_chain = 40;
  std::error_code ignored;
  for (int i = 0; i < longest_chain; ++i) {
    if (!fs::is_symlink(path, ignored)) return path;
    std::error_code failure;
    const fs::path next = fs::read_symlink(path, failure);
    if (failure) throw file_error(saving, path, failure.value());
    path = path.parent_path() / next;
  }
  throw file_error(saving, path, ELOOP);
}

fs::path folder_of(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

std::string hexadecimal(std::uint64_t value) {
  char digits[16];
  return std::string(digits, std::to_chars(digits, digits + sizeof digits, value, 16).ptr);
}

/// What the temporary files of one target begin with. A hash, since the target's name may be as long
/// as a name can be.
std::string temporary_prefix(const fs::path& target) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : target.filename().string()) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  }
  return ".kovsave-" + hexadecimal(hash) + "-";
}

/// Removes the file unless a living program has it locked.
void remove_abandoned(const fs::path& file) {
  const UniqueFd opened(::open(file.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (opened.valid() && ::flock(opened.get(), LOCK_EX | LOCK_NB) == 0) ::unlink(file.c_str());
}

void remove_abandoned_files(const fs::path& target) {
  const std::string prefix = temporary_prefix(target);
  std::error_code failure;
  fs::directory_iterator entry(folder_of(target), failure);
  while (!failure && entry != fs::directory_iterator()) {
    if (entry->path().filename().string().starts_with(prefix)) remove_abandoned(entry->path());
    entry.increment(failure);
  }
}

fs::path fresh_name(const fs::path& target) {
  static std::atomic<std::uint64_t> count = 0;
  return folder_of(target) / (temporary_prefix(target) + hexadecimal(static_cast<std::uint64_t>(::getpid())) +
                              "-" + hexadecimal(++count));
}

/// Locks a file that was just created. False when a clean-up was faster and removed it. Where the file
/// system knows no locks the file stays unlocked; a clean-up gets no lock there either.
bool lock_new_file(int file) {
  while (::flock(file, LOCK_EX) != 0 && errno == EINTR) {
  }
  struct stat facts {};
  return ::fstat(file, &facts) != 0 || facts.st_nlink != 0;
}

void require_replaceable(const fs::path& target) {
  struct stat facts {};
  if (::stat(target.c_str(), &facts) != 0) {
    if (errno == ENOENT) return;
    throw file_error(saving, target, errno);
  }
  if (S_ISDIR(facts.st_mode)) throw file_error(saving, target, EISDIR);
  if (!S_ISREG(facts.st_mode)) throw file_error("Cannot save " + target.string() + ":\nNot an ordinary file");
  if (::access(target.c_str(), W_OK) != 0) throw file_error(saving, target, errno);
}

}  // namespace

ReplacementFile::ReplacementFile(const fs::path& path) : target_(behind_links(path)) {
  require_replaceable(target_);
  remove_abandoned_files(target_);
  create();
  take_permissions_of_old_file();
}

ReplacementFile::TemporaryName::~TemporaryName() {
  if (!path.empty()) ::unlink(path.c_str());
}

void ReplacementFile::create() {
  for (;;) {
    const fs::path name = fresh_name(target_);
    UniqueFd file(::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666));
    if (!file.valid() && errno == EEXIST) continue;
    if (!file.valid()) {
      throw file_error(saving + (" " + target_.string()) + ", no new file in folder", folder_of(target_),
                       errno);
    }
    if (!lock_new_file(file.get())) continue;
    file_ = std::move(file);
    temporary_.path = name;
    return;
  }
}

void ReplacementFile::take_permissions_of_old_file() {
  struct stat old {};
  if (::stat(target_.c_str(), &old) != 0) return;
  // Only a privileged user may give files away; for all others the new file is theirs, as it should.
  const bool given = ::fchown(file_.get(), old.st_uid, old.st_gid) == 0;
  constexpr mode_t permissions = 0777;
  constexpr mode_t all_bits = 07777;
  const mode_t mode = old.st_mode & (given ? all_bits : permissions);
  if (::fchmod(file_.get(), mode) != 0) throw file_error(saving, target_, errno);
}

void ReplacementFile::write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(file_.get(), text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw file_error(saving, target_, errno);
    text.remove_prefix(static_cast<std::size_t>(count));
    written_ += count;
    begin_flushing();
  }
}

// A wish, which a system or a file system may not know: whether all went well is for the flush at the end.
void ReplacementFile::begin_flushing() {
#if defined(SYNC_FILE_RANGE_WRITE)
  constexpr std::int64_t at_once = std::int64_t{4} << 20;
  const std::int64_t waiting = written_ - flushing_;
  if (waiting < at_once) return;
  ::sync_file_range(file_.get(), flushing_, waiting, SYNC_FILE_RANGE_WRITE);
  flushing_ = written_;
#endif
}

void ReplacementFile::commit() {
  if (::fsync(file_.get()) != 0) throw file_error(saving, target_, errno);
  if (::rename(temporary_.path.c_str(), target_.c_str()) != 0) throw file_error(saving, target_, errno);
  temporary_.path.clear();
  file_ = UniqueFd();
  flush_folder();
}

void ReplacementFile::flush_folder() const {
  const fs::path folder = folder_of(target_);
  const UniqueFd opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A folder may be writable without being readable, and not every file system flushes folders: the
  // renaming stands then, and reaches the disk when the system writes it.
  if (!opened.valid() || ::fsync(opened.get()) == 0 || errno == EINVAL || errno == ENOTSUP) return;
  throw file_error("flush folder", folder, errno);
}

}  // namespace kov
