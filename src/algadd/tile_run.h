#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "algadd/cell_lines.h"
#include "algadd/cells_of_points.h"
#include "algadd/hashed_sums.h"
#include "algadd/spaced_points.h"
#include "algadd/step_plan.h"
#include "algadd/step_sources.h"
#include "algadd/sum_writer.h"
#include "algadd/term_places.h"

namespace kov {

/// The memory in which one thread makes tiles; it stays from part to part of a row.
template <class Arithmetic>
struct TileRoom {
  using Sum = typename Arithmetic::Sum;

  typename StepSources<Arithmetic>::Room values;
  std::vector<Piece> pieces;
  /// All absent between two tiles.
  std::vector<Sum> cells;
  /// 0 between two tiles.
  std::vector<std::uint8_t> marks;
  HashedSums<Sum> hashed;

  /// Makes sure of so many cells, and of what belongs to them.
  void make_cells(std::size_t count) {
    constexpr std::size_t cells_behind = 8 * cells_of_line;
    static_assert(cells_behind >= cells_behind_points);
    const std::size_t padded = count + cells_behind;
    if (cells.size() >= padded) return;
    cells.resize(padded);
    marks.resize(padded / cells_of_line + 8);
  }
};

/// Makes a part of the destinations of a plan, on one thread.
///
/// The destinations are passed once, tile by tile. Into a tile every term moves its points by a constant
/// distance, one term after the other in the order of the plan; each destination thus takes its
/// contributions in the literal order, and no heap has to merge the terms. A tile is one of two kinds:
/// - scattered: a sum for every cell of a range of keys that fits the caches, of which all are looked through
///   where many are hit, and the marked lines where few are;
/// - hashed: as many contributions as make no more sums than fit the caches, in a hash table.
/// The tiles of sparse matrix products: see docs/engine.md.
template <class Arithmetic>
class TileRun {
 public:
  using Sum = typename Arithmetic::Sum;

  TileRun(const StepPlan& plan, const Arithmetic& arithmetic, const StepSources<Arithmetic>& sources,
          TileRoom<Arithmetic>& room, std::vector<BoundedBlock>& blocks)
      : plan_(plan),
        sources_(sources),
        room_(room),
        writer_(std::make_unique<SumWriter<Arithmetic>>(plan, arithmetic, blocks)) {
    for (const StepTerm& term : plan.terms) factors_.push_back(arithmetic.factor(term.p));
  }

  /// The destinations first <= packed key < end.
  void run(std::int64_t first, std::int64_t end) {
    TermPlaces places(plan_, first);
    for (std::int64_t key = places.next_key(); key < end; key = places.next_key()) tile(places, key, end);
    writer_->flush();
  }

 private:
  using Factor = typename Arithmetic::Factor;
  using Values = typename Arithmetic::Values;

  // Sums of 48 KB, which the first-level cache holds; and of 1 MB at most, which the second-level cache
  // holds, of which only marked lines are looked at.
  static constexpr std::int64_t cells_of_full_tile = 49152 / sizeof(Sum);
  static constexpr std::int64_t cells_of_marked_tile = std::min<std::int64_t>(131072, 1048576 / sizeof(Sum));
  // Of a term: passing it by takes about as long as some ten contributions.
  static constexpr std::size_t points_worth_a_tile = 24;
  // More would hit most lines of their range: a full tile is better there.
  static constexpr std::size_t contributions_of_marked_tile = 4096;
  // So that a table of their keys stays in the second-level cache.
  static constexpr std::size_t contributions_to_hash = 8192;

  void tile(TermPlaces& places, std::int64_t key, std::int64_t end) {
    const std::size_t terms = factors_.size();
    const std::int64_t full_end = std::min(end, key + cells_of_full_tile);
    if (places.key_behind(1 + cells_of_full_tile / 16 / terms) <= full_end) {
      places.pass(full_end, room_.pieces);
      return scatter(key, full_end);
    }
    // Not far into a denser part of the row.
    const std::size_t most_points = std::max(points_worth_a_tile, 1 + contributions_of_marked_tile / terms);
    const std::int64_t marked_end =
        std::min({end, key + cells_of_marked_tile, places.key_behind(most_points)});
    if (places.key_behind(points_worth_a_tile) <= marked_end) {
      places.pass(marked_end, room_.pieces);
      return scatter_marked(key, marked_end);
    }
    const std::size_t points = std::max<std::size_t>(64, contributions_to_hash / terms);
    places.pass(std::min(end, places.key_behind(points)), room_.pieces);
    hash();
  }

  /// f(i, factor times value i) for every i < count.
  template <class Function>
  KOV_INLINE static void for_each_product_of(const Factor& factor, const Values& values, std::size_t count,
                                             const Function& f) {
    if constexpr (requires { Arithmetic::for_each_product(factor, values, count, f); }) {
      Arithmetic::for_each_product(factor, values, count, f);
    } else {
      for (std::size_t i = 0; i < count; ++i) f(i, Arithmetic::product(factor, values, i));
    }
  }

  /// f(packed destination, product) for every contribution of a piece.
  template <class Function>
  KOV_INLINE void for_each_product_of_piece(const Piece& piece, const Function& f) {
    const StepTerm& term = plan_.terms[piece.term];
    const Block& block = plan_.streams[term.stream].block(piece.block);
    const auto values = sources_.values(term.stream, piece, room_.values);
    const auto factor = factors_[piece.term];
    const std::int64_t shift = term.shift;
    if (const std::uint32_t* const offsets = block.offsets()) {
      const std::int64_t base = static_cast<std::int64_t>(block.base()) + shift;
      for_each_product_of(factor, values, piece.count,
                          [=, &f](std::size_t i, const auto& product)
                              KOV_INLINE { f(base + offsets[piece.from + i], product); });
    } else {
      const std::uint64_t* const keys = block.keys() + piece.from;
      for_each_product_of(factor, values, piece.count,
                          [=, &f](std::size_t i, const auto& product)
                              KOV_INLINE { f(static_cast<std::int64_t>(keys[i]) + shift, product); });
    }
  }

  /// Adds the contributions of a piece to the cells, the first of which has the key begin.
  void add(const Piece& piece, std::int64_t begin) {
    const StepTerm& term = plan_.terms[piece.term];
    const Block& block = plan_.streams[term.stream].block(piece.block);
    const Factor& factor = factors_[piece.term];
    Sum* const cells = room_.cells.data();
    if constexpr (requires { &Arithmetic::add_products; }) {
      const CellsOfPoints places(block, piece.from, term.shift - begin);
      Arithmetic::add_products(factor, sources_.values(term.stream, piece, room_.values), places, piece.count,
                               cells);
      return;
    } else if constexpr (is_linear<Arithmetic>) {
      if (const std::uint32_t* const offsets = block.offsets()) {
        const std::int64_t first = static_cast<std::int64_t>(block.base()) + term.shift - begin;
        return add_products<Arithmetic>(cells, first, offsets + piece.from, piece.count, factor,
                                        sources_.values(term.stream, piece, room_.values));
      }
    }
    for_each_product_of_piece(piece, [=](std::int64_t key, const auto& product)
                                         KOV_INLINE { Arithmetic::add(cells[key - begin], product); });
  }

  void scatter(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    room_.make_cells(cell_count);
    for (const Piece& piece : room_.pieces) add(piece, begin);
    writer_->take(begin, room_.cells.data(), cell_count);
  }

  /// Marks the lines of the cells that the piece adds to.
  void mark(const Piece& piece, std::int64_t begin) {
    const StepTerm& term = plan_.terms[piece.term];
    const CellsOfPoints places(plan_.streams[term.stream].block(piece.block), piece.from, term.shift - begin);
    for (std::size_t i = 0; i < piece.count; ++i) room_.marks[places[i] / cells_of_line] = 1;
  }

  void scatter_marked(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    room_.make_cells(cell_count);
    Sum* const cells = room_.cells.data();
    std::uint8_t* const marks = room_.marks.data();
    for (const Piece& piece : room_.pieces) {
      if constexpr (requires { &Arithmetic::add_products; }) {
        add(piece, begin);
        mark(piece, begin);
      } else {
        for_each_product_of_piece(piece, [=](std::int64_t key, const auto& product) KOV_INLINE {
          const auto cell = static_cast<std::size_t>(key - begin);
          Arithmetic::add(cells[cell], product);
          marks[cell / cells_of_line] = 1;
        });
      }
    }
    writer_->take_marked(begin, cells, cell_count, marks);
  }

  void hash() {
    for (const Piece& piece : room_.pieces) {
      room_.hashed.take(piece.count, [&](auto& sums) KOV_INLINE {
        for_each_product_of_piece(piece, [&sums](std::int64_t key, const auto& product)
                                             KOV_INLINE { Arithmetic::add(sums.at(key), product); });
      });
    }
    room_.hashed.drain([this](std::int64_t key, const Sum& sum) { writer_->append(key, sum); });
  }

  const StepPlan& plan_;
  const StepSources<Arithmetic>& sources_;
  TileRoom<Arithmetic>& room_;
  std::vector<typename Arithmetic::Factor> factors_;
  std::unique_ptr<SumWriter<Arithmetic>> writer_;
};

}  // namespace kov
