#include "datafile/point_writer.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include "datafile/line_text.h"
#include "datafile/point_lines.h"

namespace kov {

namespace {

struct RowBlock {
  const Row* row;
  const Block* block;
};

/// All blocks of a store, in key order.
class BlockWalk {
 public:
  explicit BlockWalk(const Lmap& lmap) : rows_(lmap.rows()), row_(rows_.begin()) {}

  bool done() const { return row_ == rows_.end(); }
  RowBlock next() {
    const RowBlock found{&*row_, &row_->block(block_)};
    if (++block_ == row_->block_count()) {
      ++row_;
      block_ = 0;
    }
    return found;
  }

 private:
  Lmap::Rows rows_;
  Lmap::RowCursor row_;
  std::size_t block_ = 0;
};

/// Blocks whose lines one thread makes: a full one, or small ones that have as many points together.
class LineTask {
 public:
  /// Without blocks when the walk is done.
  void take_blocks(BlockWalk& walk) {
    blocks_.clear();
    points_ = 0;
    text_.clear();
    while (points_ < block_capacity && !walk.done()) {
      blocks_.push_back(walk.next());
      points_ += blocks_.back().block->size();
    }
  }
  void make_lines(std::string_view key) {
    for (const auto& [row, block] : blocks_) put_point_lines(text_, key, *row, *block);
  }

  std::size_t points() const { return points_; }
  std::string_view text() const { return text_.text(); }

 private:
  std::vector<RowBlock> blocks_;
  std::size_t points_ = 0;
  LineText text_;
};

/// What the threads make at once, and what is then written at once.
class LineBatch {
 public:
  explicit LineBatch(int threads) : tasks_(tasks_a_thread * static_cast<std::size_t>(threads)) {}

  void take_blocks(BlockWalk& walk) {
    used_ = 0;
    points_ = 0;
    while (used_ < tasks_.size() && !walk.done()) {
      tasks_[used_].take_blocks(walk);
      points_ += static_cast<std::int64_t>(tasks_[used_++].points());
    }
  }
  std::size_t task_count() const { return used_; }
  std::int64_t points() const { return points_; }

  void make_lines(std::size_t task, std::string_view key) { tasks_[task].make_lines(key); }
  void write(TextBuffer& out) const {
    for (std::size_t i = 0; i < used_; ++i) out.pass_on(tasks_[i].text());
  }

 private:
  static constexpr std::size_t tasks_a_thread = 4;

  std::vector<LineTask> tasks_;
  std::size_t used_ = 0;
  std::int64_t points_ = 0;
};

}  // namespace

bool put_points(TextBuffer& out, std::string_view key, const Lmap& lmap, WorkerPool& workers,
                const AfterPoints& after_points) {
  BlockWalk walk(lmap);
  LineBatch made(workers.threads());
  LineBatch ready(workers.threads());
  std::int64_t points = 0;
  for (;;) {
    made.take_blocks(walk);
    // Writing is the longest task, and begins first.
    const std::size_t writing = ready.points() == 0 ? 0 : 1;
    workers.run(
        writing + made.task_count(),
        [&](std::size_t task, std::size_t) {
          if (task < writing) {
            ready.write(out);
          } else {
            made.make_lines(task - writing, key);
          }
        },
        [] {});
    points += ready.points();
    if (writing != 0 && !after_points(points)) return false;
    if (made.points() == 0) return true;
    std::swap(made, ready);
  }
}

}  // namespace kov
