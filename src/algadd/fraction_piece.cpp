#include "algadd/fraction_piece.h"

#include <algorithm>

#include "algadd/fraction_arithmetic.h"
#include "algadd/fraction_lanes.h"

namespace kov {

namespace {

// The loops over lanes have whole vectors; what is behind the points counts for nothing.
constexpr std::size_t lanes_of_vector = 16;
// Fewer are faster one by one.
constexpr std::size_t least_lanes = 8;

KOV_INLINE inline void fill_up(FractionLanes& lanes, std::size_t from, std::size_t count) {
  for (std::size_t i = from; i < count; ++i) lanes.set(i, {});
}

KOV_INLINE inline void load_sources(const FractionValues& values, std::size_t first, std::size_t count,
                                    FractionLanes& source) {
  if (values.fractions != nullptr) {
    const Fraction32* const fractions = values.fractions + first;
    for (std::size_t i = 0; i < count; ++i) {
      source.number[i] = static_cast<double>(fractions[i].nu);
      source.form[i] = static_cast<double>(fractions[i].de);
    }
  } else {
    for (std::size_t i = 0; i < count; ++i) source.set(i, values.numbers[first + i]);
  }
}

/// Points one after the other of one piece.
struct Chunk {
  FractionValues values;
  CellsOfPoints places;
  std::size_t first;
  std::size_t count;
};

KOV_INLINE inline void add_chunk(const FractionSum& p, const Chunk& chunk, FractionSum* cells,
                                 FractionRoom& room) {
  const std::size_t count = chunk.count;
  const std::size_t lanes = (count + lanes_of_vector - 1) / lanes_of_vector * lanes_of_vector;
  load_sources(chunk.values, chunk.first, count, room.source);
  fill_up(room.source, count, lanes);
  multiply(p, room, lanes);
  FractionSum* const begin = cells + chunk.places[chunk.first];
  const bool side_by_side = cells + chunk.places[chunk.first + count - 1] == begin + (count - 1);
  if (side_by_side) {
    for (std::size_t i = 0; i < count; ++i) room.sum.set(i, begin[i]);
  } else {
    for (std::size_t i = 0; i < count; ++i) room.sum.set(i, cells[chunk.places[chunk.first + i]]);
  }
  fill_up(room.sum, count, lanes);
  add(room, lanes);
  if (side_by_side) {
    for (std::size_t i = 0; i < count; ++i) begin[i] = room.sum[i];
  } else {
    for (std::size_t i = 0; i < count; ++i) cells[chunk.places[chunk.first + i]] = room.sum[i];
  }
}

}  // namespace

void add_fractions(const FractionSum& p, const FractionValues& values, const CellsOfPoints& places,
                   std::size_t count, FractionSum* cells) {
  std::size_t first = 0;
  // Without vectors that shift each number by its own count, one by one is faster.
  if (vector_unit() != VectorUnit::baseline && p.number != 0.0) {
    run_loop([&]() KOV_INLINE {
      FractionRoom room;
      for (; first + least_lanes <= count; first += std::min(count - first, FractionLanes::capacity)) {
        add_chunk(p, {values, places, first, std::min(count - first, FractionLanes::capacity)}, cells, room);
      }
    });
  }
  for (; first < count; ++first) {
    FractionArithmetic::add(cells[places[first]], FractionArithmetic::product(p, values, first));
  }
}

}  // namespace kov
