#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "algadd/worker_pool.h"
#include "datafile/text_buffer.h"
#include "lattice/lmap.h"

namespace kov {

/// Told after each batch of blocks how many points are written; false ends the writing. Called on the thread
/// that calls put_points, while no other one works.
using AfterPoints = std::function<bool(std::int64_t points)>;

/// Puts the lines of all points into out, in key order. The threads of the pool make them for some blocks
/// each, while one of them writes what was made before: a few MB of text for each thread stand in memory,
/// some tens where all coordinates vary. False when after_points ended it. What the writing throws, and
/// std::bad_alloc, is thrown when no thread works any more.
bool put_points(TextBuffer& out, std::string_view key, const Lmap& lmap, WorkerPool& workers,
                const AfterPoints& after_points);

}  // namespace kov
