#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "algadd/find_present.h"
#include "algadd/key_sort.h"
#include "algadd/step_plan.h"
#include "algadd/step_sources.h"
#include "algadd/sum_writer.h"
#include "algadd/term_places.h"

namespace kov {

/// The part of a step that makes the destinations first <= packed key < end, on one thread.
///
/// The destinations are passed once, tile by tile. Into a tile every term moves its points by a constant
/// distance, one term after the other in the order of the plan; each destination thus takes its
/// contributions in the literal order, and no heap has to merge the terms. A tile is one of two kinds:
/// - scattered: a sum for every cell of a range of keys that fits the caches, of which all are looked through
///   where many are hit, and the marked lines where few are;
/// - sorted: as many contributions as fit the caches, sorted by key, equal keys in order, and added up.
/// The tiles of sparse matrix products and of bucket sorts: see docs/engine.md.
template <class Arithmetic>
class TileRun {
 public:
  using Sum = typename Arithmetic::Sum;

  TileRun(const StepPlan& plan, const Arithmetic& arithmetic, const StepSources<Arithmetic>& sources,
          std::int64_t first, std::int64_t end, std::vector<BoundedBlock>& blocks)
      : plan_(plan),
        arithmetic_(arithmetic),
        sources_(sources),
        end_(end),
        places_(plan, first),
        writer_(std::make_unique<SumWriter<Arithmetic>>(plan, arithmetic, blocks)) {
    for (const StepTerm& term : plan.terms) factors_.push_back(arithmetic.factor(term.p));
  }

  void run() {
    for (std::int64_t key = places_.next_key(); key < end_; key = places_.next_key()) tile(key);
    writer_->flush();
  }

 private:
  // Sums that the first-level cache holds beside the sources, and those that the second level holds.
  static constexpr std::int64_t cells_of_full_tile = std::max<std::int64_t>(1024, 49152 / sizeof(Sum));
  static constexpr std::int64_t cells_of_marked_tile = std::max<std::int64_t>(4096, 262144 / sizeof(Sum));
  static constexpr std::size_t contributions_to_sort = 8192;

  void tile(std::int64_t key) {
    const std::int64_t full_end = std::min(end_, key + cells_of_full_tile);
    if (expects(cells_of_full_tile / 8, full_end)) {
      places_.pass(full_end, pieces_);
      return scatter(key, full_end);
    }
    const std::int64_t marked_end = std::min(end_, key + cells_of_marked_tile);
    if (expects(static_cast<std::int64_t>(4 * factors_.size()), marked_end)) {
      places_.pass(marked_end, pieces_);
      return scatter_marked(key, marked_end);
    }
    const std::size_t points = std::max<std::size_t>(64, contributions_to_sort / factors_.size());
    places_.pass(std::min(end_, places_.key_behind(points)), pieces_);
    sort_and_add();
  }

  /// Whether some term makes its part of so many contributions before end.
  bool expects(std::int64_t contributions, std::int64_t end) const {
    return places_.key_behind(static_cast<std::size_t>(contributions) / factors_.size()) <= end;
  }

  /// f(packed destination, product) for every contribution of the tile, term by term.
  template <class Function>
  KOV_INLINE void for_each_product(const Function& f) {
    for (const Piece& piece : pieces_) {
      const StepTerm& term = plan_.terms[piece.term];
      const Block& block = plan_.streams[term.stream].block(piece.block);
      const auto values = sources_.values(term.stream, piece, room_);
      const auto factor = factors_[piece.term];
      const std::int64_t shift = term.shift;
      if (const std::uint32_t* const offsets = block.offsets()) {
        const std::int64_t base = static_cast<std::int64_t>(block.base()) + shift;
        for (std::size_t i = 0; i < piece.count; ++i) {
          f(base + offsets[piece.from + i], Arithmetic::product(factor, values, i));
        }
      } else {
        const std::uint64_t* const keys = block.keys() + piece.from;
        for (std::size_t i = 0; i < piece.count; ++i) {
          f(static_cast<std::int64_t>(keys[i]) + shift, Arithmetic::product(factor, values, i));
        }
      }
    }
  }

  void scatter(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    make_cells(cell_count);
    Sum* const cells = cells_.data();
    for_each_product([=](std::int64_t key, const Sum& product) KOV_INLINE {
      Arithmetic::add(cells[key - begin], product);
    });
    const std::size_t present = find_present(cells, cell_count, found_.data());
    writer_->append(begin, cells, std::span<const std::uint32_t>(found_.data(), present));
    std::fill_n(cells, cell_count, Sum{});
  }

  void scatter_marked(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    make_cells(cell_count);
    Sum* const cells = cells_.data();
    std::uint8_t* const marks = marks_.data();
    for_each_product([=](std::int64_t key, const Sum& product) KOV_INLINE {
      const auto cell = static_cast<std::size_t>(key - begin);
      Arithmetic::add(cells[cell], product);
      marks[cell / cells_of_line] = 1;
    });
    const std::size_t lines = (cell_count / cells_of_line + 8) / 8 * 8;
    const std::size_t present = find_present_in_lines(cells, marks, lines, found_.data());
    const std::span<const std::uint32_t> found(found_.data(), present);
    writer_->append(begin, cells, found);
    // A cell whose sum has come back to zero counts as new already.
    for (const std::uint32_t cell : found) cells[cell] = Sum{};
  }

  void make_cells(std::size_t count) {
    if (cells_.size() >= count + 8 * cells_of_line) return;
    cells_.resize(count + 8 * cells_of_line);
    found_.resize(cells_.size() + cells_of_line);
    marks_.resize(cells_.size() / cells_of_line + 8);
  }

  void sort_and_add() {
    products_.clear();
    for_each_product([this](std::int64_t key, const Sum& product) KOV_INLINE {
      products_.push_back({key, product});
    });
    sort_by_key(products_, sorted_);
    for (std::size_t i = 0; i < products_.size();) {
      const std::int64_t key = products_[i].key;
      Sum sum{};
      for (; i < products_.size() && products_[i].key == key; ++i) Arithmetic::add(sum, products_[i].value);
      writer_->append(key, sum);
    }
  }

  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
  const StepSources<Arithmetic>& sources_;
  const std::int64_t end_;
  TermPlaces places_;
  std::vector<typename Arithmetic::Factor> factors_;
  std::vector<Piece> pieces_;
  typename StepSources<Arithmetic>::Room room_;
  std::unique_ptr<SumWriter<Arithmetic>> writer_;
  /// All absent between two tiles.
  std::vector<Sum> cells_;
  std::vector<std::uint32_t> found_;
  /// 0 between two tiles.
  std::vector<std::uint8_t> marks_;
  std::vector<Keyed<Sum>> products_;
  std::vector<Keyed<Sum>> sorted_;
};

}  // namespace kov
