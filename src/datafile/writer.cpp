#include "datafile/writer.h"

#include <algorithm>
#include <ctime>
#include <optional>

#include "datafile/date_time.h"
#include "datafile/file_layout.h"
#include "datafile/points_per_display.h"
#include "datafile/replacement_file.h"
#include "text/integers.h"

namespace kov {

namespace {

/// The points between two checks of the Break button when progress is shown less often.
constexpr std::int64_t points_per_check = 4096;

/// Shows how many points are saved and looks for Break.
class SaveProgress {
 public:
  SaveProgress(const Document& document, std::string name, Progress& progress)
      : progress_(progress),
        name_(std::move(name)),
        total_(static_cast<std::int64_t>(document.lmap.count())),
        points_per_display_(points_per_display(document.cph)),
        next_display_(points_per_display_),
        box_(progress, 0, total_) {}

  /// So many points are saved by now; false when Break was pressed.
  bool advance(std::int64_t points) {
    for (;;) {
      const std::int64_t event = std::min(next_display_, next_check_);
      if (event > points) return true;
      if (event == next_display_) display();
      next_check_ = event + points_per_check;
      if (progress_.break_requested()) return false;
    }
  }

 private:
  void display() {
    box_.at(next_display_);
    progress_.headline("lattice point " + int_text(next_display_) + " of " + int_text(total_) + " saved to " +
                       name_);
    next_display_ += points_per_display_;
  }

  Progress& progress_;
  const std::string name_;
  const std::int64_t total_;
  const std::int64_t points_per_display_;
  std::int64_t next_display_;
  std::int64_t next_check_ = points_per_check;
  ProgressBox box_;
};

}  // namespace

bool write_data_file(const std::filesystem::path& path, const Document& document, WithLattices lattices,
                     Progress& progress) {
  const FileHead head{path.filename().string(), date_time_text(std::time(nullptr)), lattices};
  ReplacementFile file(path);
  TextBuffer out([&file](std::string_view block) { file.write(block); });
  std::optional<SaveProgress> save_progress;
  if (lattices == WithLattices::yes) save_progress.emplace(document, head.file_name, progress);
  const AfterPoints after_points = [&save_progress](std::int64_t points) {
    return save_progress->advance(points);
  };
  if (!put_data_file(out, document, head, after_points)) return false;
  out.flush();
  file.commit();
  return true;
}

std::string data_file_text(const Document& document, const std::string& file_name, WithLattices lattices,
                           const std::string& date_time) {
  std::string text;
  TextBuffer out([&text](std::string_view block) { text += block; });
  put_data_file(out, document, {file_name, date_time, lattices}, [](std::int64_t) { return true; });
  out.flush();
  return text;
}

}  // namespace kov
