#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "algadd/find_present.h"
#include "algadd/key_sort.h"
#include "algadd/step_plan.h"
#include "algadd/sum_writer.h"
#include "algadd/term_places.h"

namespace kov {

/// The part of a step that makes the destinations first <= packed key < end, on one thread.
///
/// The destinations are passed once, tile by tile. Into a tile every term moves its points by a constant
/// distance, one term after the other in the order of the plan; each destination thus takes its
/// contributions in the literal order, and no heap has to merge the terms. A tile is one of two kinds:
/// - scattered: a sum for every cell of a range of keys that fits the caches, where enough cells are hit;
/// - sorted: as many contributions as fit the caches, sorted by key, equal keys in order, and added up.
/// The tiles of sparse matrix products and of bucket sorts: see docs/engine.md.
template <class Arithmetic>
class TileRun {
 public:
  using Sum = typename Arithmetic::Sum;

  TileRun(const StepPlan& plan, const Arithmetic& arithmetic, std::int64_t first, std::int64_t end,
          std::vector<Block>& blocks)
      : arithmetic_(arithmetic),
        end_(end),
        places_(plan, first),
        room_(std::make_unique<typename Arithmetic::Room>()),
        writer_(std::make_unique<SumWriter<Arithmetic>>(arithmetic, blocks)) {
    for (const StepTerm& term : plan.terms) {
      factors_.push_back(arithmetic.factor(term.p));
      shifts_.push_back(term.shift);
    }
  }

  void run() {
    for (std::int64_t key = places_.next_key(); key < end_; key = places_.next_key()) tile(key);
    writer_->flush();
  }

 private:
  /// The cells of a scattered tile, some 64 KB of sums.
  static constexpr std::int64_t cells_of_tile = std::max<std::int64_t>(1024, 65536 / sizeof(Sum));
  /// A tile is scattered when its terms move so many points into it; to look through its cells costs less than
  /// to sort them.
  static constexpr std::size_t contributions_for_cells = static_cast<std::size_t>(cells_of_tile) / 64;
  static constexpr std::size_t contributions_to_sort = 8192;

  void tile(std::int64_t key) {
    const std::int64_t cells_end = std::min(end_, key + cells_of_tile);
    if (cells_end == end_ || places_.key_behind(contributions_for_cells / factors_.size() + 1) <= cells_end) {
      places_.pass(cells_end, pieces_);
      scatter(key, cells_end);
    } else {
      const std::size_t points = std::max<std::size_t>(64, contributions_to_sort / factors_.size());
      places_.pass(std::min(end_, places_.key_behind(points)), pieces_);
      sort_and_add();
    }
  }

  /// f(packed destination, product) for every contribution of the tile, term by term.
  template <class Function>
  KOV_INLINE void for_each_product(const Function& f) {
    for (const Piece& piece : pieces_) {
      const Block& block = *piece.block;
      const auto values = arithmetic_.values(block, piece.from, piece.count, *room_);
      const auto factor = factors_[piece.term];
      const std::int64_t shift = shifts_[piece.term];
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
    if (cells_.size() < cell_count) {
      cells_.resize(cell_count);
      found_.resize(cell_count + 16);
    }
    Sum* const cells = cells_.data();
    for_each_product([=](std::int64_t key, const Sum& product) KOV_INLINE {
      Arithmetic::add(cells[key - begin], product);
    });
    const std::size_t present = find_present(cells, cell_count, found_.data());
    writer_->append(begin, cells, std::span<const std::uint32_t>(found_.data(), present));
    std::fill_n(cells, cell_count, Sum{});
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

  const Arithmetic& arithmetic_;
  const std::int64_t end_;
  TermPlaces places_;
  std::vector<typename Arithmetic::Factor> factors_;
  std::vector<std::int64_t> shifts_;
  std::vector<Piece> pieces_;
  std::unique_ptr<typename Arithmetic::Room> room_;
  std::unique_ptr<SumWriter<Arithmetic>> writer_;
  /// All absent between two tiles.
  std::vector<Sum> cells_;
  std::vector<std::uint32_t> found_;
  std::vector<Keyed<Sum>> products_;
  std::vector<Keyed<Sum>> sorted_;
};

}  // namespace kov
