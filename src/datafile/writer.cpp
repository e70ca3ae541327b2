#include "datafile/writer.h"

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

  bool after_point(std::int64_t points) {
    ++points_since_check_;
    if (points == next_display_) {
      next_display_ += points_per_display_;
      box_.at(points);
      progress_.headline("lattice point " + int_text(points) + " of " + int_text(total_) + " saved to " +
                         name_);
    } else if (points_since_check_ < points_per_check) {
      return true;
    }
    points_since_check_ = 0;
    return !progress_.break_requested();
  }

 private:
  Progress& progress_;
  const std::string name_;
  const std::int64_t total_;
  const std::int64_t points_per_display_;
  std::int64_t next_display_;
  ProgressBox box_;
  std::int64_t points_since_check_ = 0;
};

}  // namespace

bool write_data_file(const std::filesystem::path& path, const Document& document, WithLattices lattices,
                     Progress& progress) {
  const FileHead head{path.filename().string(), date_time_text(std::time(nullptr)), lattices};
  ReplacementFile file(path);
  TextBuffer out([&file](std::string_view block) { file.write(block); });
  std::optional<SaveProgress> save_progress;
  if (lattices == WithLattices::yes) save_progress.emplace(document, head.file_name, progress);
  const AfterPoint after_point = [&save_progress](std::int64_t points) {
    return save_progress->after_point(points);
  };
  if (!put_data_file(out, document, head, after_point)) return false;
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
