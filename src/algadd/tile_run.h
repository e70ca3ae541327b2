#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "algadd/find_present.h"
#include "algadd/key_sort.h"
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
  std::vector<Keyed<Sum>> products;
  std::vector<Keyed<Sum>> sorted;

  /// Makes sure of so many cells, and of what belongs to them.
  void make_cells(std::size_t count) {
    const std::size_t whole_words = count + 8 * cells_of_line;
    if (cells.size() >= whole_words) return;
    cells.resize(whole_words);
    marks.resize(whole_words / cells_of_line + 8);
  }
};

/// Makes a part of the destinations of a plan, on one thread.
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
  using Factor = typename Arithmetic::Factor;

  TileRun(const StepPlan& plan, const Arithmetic& arithmetic, const StepSources<Arithmetic>& sources,
          TileRoom<Arithmetic>& room, std::vector<BoundedBlock>& blocks)
      : plan_(plan),
        arithmetic_(arithmetic),
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
  // Sums that the first-level cache holds beside the sources; and so many that few of their lines are
  // touched.
  static constexpr std::int64_t cells_of_full_tile = std::max<std::int64_t>(1024, 49152 / sizeof(Sum));
  static constexpr std::int64_t cells_of_marked_tile = sizeof(Sum) > 16 ? 16384 : 65536;
  static constexpr std::size_t contributions_of_marked_tile = 4096;
  static constexpr std::size_t contributions_to_sort = 8192;

  void tile(TermPlaces& places, std::int64_t key, std::int64_t end) {
    const std::size_t terms = factors_.size();
    const std::int64_t full_end = std::min(end, key + cells_of_full_tile);
    if (places.key_behind(1 + cells_of_full_tile / 32 / terms) <= full_end) {
      places.pass(full_end, room_.pieces);
      return scatter(key, full_end);
    }
    // Not far into a denser part of the row.
    const std::int64_t marked_end = std::min(
        {end, key + cells_of_marked_tile, places.key_behind(1 + contributions_of_marked_tile / terms)});
    if (places.key_behind(1 + 32 / terms) <= marked_end) {
      places.pass(marked_end, room_.pieces);
      return scatter_marked(key, marked_end);
    }
    const std::size_t points = std::max<std::size_t>(64, contributions_to_sort / terms);
    places.pass(std::min(end, places.key_behind(points)), room_.pieces);
    sort_and_add();
  }

  /// f(block, piece, distance, factor, values of the piece) for every piece of the tile, term by term.
  template <class Function>
  KOV_INLINE void for_each_piece(const Function& f) {
    for (const Piece& piece : room_.pieces) {
      const StepTerm& term = plan_.terms[piece.term];
      const Block& block = plan_.streams[term.stream].block(piece.block);
      f(block, piece, term.shift, factors_[piece.term], sources_.values(term.stream, piece, room_.values));
    }
  }

  /// f(packed destination, product) for every contribution of the tile, term by term.
  template <class Function>
  KOV_INLINE void for_each_product(const Function& f) {
    for_each_piece([&f](const Block& block, const Piece& piece, std::int64_t shift, const Factor& factor,
                        const auto& values) KOV_INLINE {
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
    });
  }

  /// Adds the pieces of the tile as wholes where the arithmetic does that; whether it does.
  bool add_pieces([[maybe_unused]] std::int64_t begin, [[maybe_unused]] std::uint8_t* marks) {
    if constexpr (requires { &Arithmetic::add_products; }) {
      for (const Piece& piece : room_.pieces) {
        const StepTerm& term = plan_.terms[piece.term];
        const CellsOfPoints places(plan_.streams[term.stream].block(piece.block), piece.from,
                                   term.shift - begin);
        const auto values = sources_.values(term.stream, piece, room_.values);
        Arithmetic::add_products(factors_[piece.term], values, places, piece.count, room_.cells.data());
        if (marks == nullptr) continue;
        for (std::size_t i = 0; i < piece.count; ++i) marks[places[i] / cells_of_line] = 1;
      }
      return true;
    }
    return false;
  }

  void scatter(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    room_.make_cells(cell_count);
    Sum* const cells = room_.cells.data();
    if (!add_pieces(begin, nullptr)) {
      for_each_piece([=](const Block& block, const Piece& piece, std::int64_t shift, const Factor& factor,
                         const auto& values) KOV_INLINE {
        if (const std::uint32_t* const offsets = block.offsets()) {
          const std::int64_t first = static_cast<std::int64_t>(block.base()) + shift - begin;
          add_products<Arithmetic>(cells, first, offsets + piece.from, piece.count, factor, values);
        } else {
          const std::uint64_t* const keys = block.keys() + piece.from;
          for (std::size_t i = 0; i < piece.count; ++i) {
            Arithmetic::add(cells[static_cast<std::int64_t>(keys[i]) + shift - begin],
                            Arithmetic::product(factor, values, i));
          }
        }
      });
    }
    writer_->take(begin, cells, cell_count);
  }

  void scatter_marked(std::int64_t begin, std::int64_t end) {
    const auto cell_count = static_cast<std::size_t>(end - begin);
    room_.make_cells(cell_count);
    Sum* const cells = room_.cells.data();
    std::uint8_t* const marks = room_.marks.data();
    if (!add_pieces(begin, marks)) {
      for_each_product([=](std::int64_t key, const Sum& product) KOV_INLINE {
        const auto cell = static_cast<std::size_t>(key - begin);
        Arithmetic::add(cells[cell], product);
        marks[cell / cells_of_line] = 1;
      });
    }
    writer_->take_marked(begin, cells, cell_count, marks);
  }

  void sort_and_add() {
    room_.products.clear();
    for_each_product([this](std::int64_t key, const Sum& product) KOV_INLINE {
      room_.products.push_back({key, product});
    });
    sort_by_key(room_.products, room_.sorted);
    for (std::size_t i = 0; i < room_.products.size();) {
      const std::int64_t key = room_.products[i].key;
      Sum sum{};
      for (; i < room_.products.size() && room_.products[i].key == key; ++i)
        Arithmetic::add(sum, room_.products[i].value);
      writer_->append(key, sum);
    }
  }

  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
  const StepSources<Arithmetic>& sources_;
  TileRoom<Arithmetic>& room_;
  std::vector<Factor> factors_;
  std::unique_ptr<SumWriter<Arithmetic>> writer_;
};

}  // namespace kov
