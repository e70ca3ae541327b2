#include "datafile/reader.h"

#include <utility>

#include "datafile/file_error.h"
#include "datafile/points_per_display.h"
#include "interact/warning_level.h"

namespace kov {

namespace {

/// The lines between two checks of the Break button when points are rare.
constexpr int lines_per_check = 4096;

/// The walk over the lines of one open file.
class ReadLoop {
 public:
  ReadLoop(LineSource& source, LineReader& reader, std::string name, const cphclass& cph, User user)
      : source_(source),
        reader_(reader),
        name_(std::move(name)),
        user_(user),
        points_per_display_(points_per_display(cph)),
        box_(user.progress, 0, 0) {}

  /// Until the end of the file or the line that stops; false when the read was aborted.
  bool run() {
    std::string_view line;
    LineResult result = LineResult::other;
    while (result != LineResult::stop && source_.next(line)) {
      ++line_number_;
      const std::string message = reader_.read_line(line, result);
      if (!message.empty() && !proceed_after(message)) return false;
      if (result == LineResult::point) ++points_;
      if (!proceed_after_check(result)) return false;
    }
    return true;
  }

 private:
  bool proceed_after(const std::string& message) {
    if (user_.messages.wl() >= level_of_beeps) user_.messages.beep();
    if (user_.messages.wl() < level_of_usual_warnings) return true;
    return user_.questions.yes_no("Error reading line " + int_text(line_number_) + " of " + name_ + ":\n" +
                                  message +
                                  "\n(Abort of reading will cause default init.)"
                                  "\n\nDo you want to proceed?");
  }

  /// False when this line's turn to look for Break has come and it was pressed.
  bool proceed_after_check(LineResult result) {
    ++lines_since_check_;
    if (result == LineResult::point && points_ % points_per_display_ == 0) {
      show_points();
    } else if (lines_since_check_ < lines_per_check) {
      return true;
    }
    lines_since_check_ = 0;
    return !user_.progress.break_requested();
  }

  void show_points() {
    const std::int64_t total = reader_.announced_points();
    // The number of points becomes known while the file is read. The bar goes into a box of its own,
    // inside the one of the whole read that keeps a pressed Break.
    if (!bar_ || total != bar_end_) {
      bar_.reset();
      bar_.emplace(user_.progress, 0, total);
      bar_end_ = total;
    }
    bar_->at(points_);
    user_.progress.headline("lattice point " + int_text(points_) + " of " + int_text(total) + " read from " +
                            name_);
  }

  LineSource& source_;
  LineReader& reader_;
  const std::string name_;
  User user_;
  const std::int64_t points_per_display_;
  ProgressBox box_;
  std::optional<ProgressBox> bar_;
  std::int64_t bar_end_ = 0;
  std::int64_t line_number_ = 0;
  std::int64_t points_ = 0;
  int lines_since_check_ = 0;
};

/// What a read of a whole file does besides to the document and the current file, and what every
/// aborted read goes back to. Nothing here needs memory.
class DocumentRead {
 public:
  DocumentRead(OpenedDataFile& file, Document& document, CurrentFile& current, bool whole_file)
      : file_(file), document_(document), current_(current), whole_file_(whole_file) {}

  void begin() {
    if (!whole_file_) return;
    current_.path = std::move(file_.path);
    current_.read_aborted = true;
    document_.reset_data();
  }

  void abort() {
    document_.cph.restore(std::move(file_.defaults));
    if (whole_file_) document_.reset_data();
  }

  void complete() {
    if (!whole_file_) return;
    current_.read_aborted = false;
    current_.chosen = true;
  }

 private:
  OpenedDataFile& file_;
  Document& document_;
  CurrentFile& current_;
  const bool whole_file_;
};

}  // namespace

std::optional<OpenedDataFile> open_data_file(const std::filesystem::path& path, const Document& document,
                                             const WindowFacts& window, Messages& messages) {
  try {
    return OpenedDataFile{LineSource(path), std::filesystem::absolute(path), path.filename().string(),
                          document.cph.defaults(window)};
  } catch (const file_error& error) {
    messages.error(error.what());
    return std::nullopt;
  }
}

ReadOutcome read_opened_file(OpenedDataFile&& file, Document& document, CurrentFile& current,
                             std::int32_t nelast, User user) {
  DocumentRead read(file, document, current, nelast != configuration_only);
  read.begin();
  bool completed = false;
  try {
    LineReader reader(document, nelast, current.chosen);
    completed = ReadLoop(file.lines, reader, file.name, document.cph, user).run();
    if (completed) reader.finish();
  } catch (const file_error& error) {
    user.messages.error(error.what());
  } catch (...) {
    read.abort();
    throw;
  }
  if (completed) {
    read.complete();
  } else {
    read.abort();
  }
  return completed ? ReadOutcome::completed : ReadOutcome::aborted;
}

}  // namespace kov
