#pragma once

namespace kov {

/// Sets the memory allocator up for rows of which each takes the place of the one before. To be called once,
/// when the program starts; it does not show in any result.
///
/// - Memory that was freed stays with the program, nearly all of it where there are several arenas: each page
///   that the system hands out for the first time costs more than the points that are written to it.
/// - The threads share the arenas of the allocator, one for every eight. An arena a thread, as it would be,
///   keeps the memory of the rows that are deleted where the other threads, which make the next row, cannot
///   take it: a run that deletes its rows needs a sixth more than both of them. Rows take pieces of memory so
///   seldom, some for every thousands of points, that eight threads hardly meet.
void set_up_process_memory();

/// Gives what is not in use back to the system: when a large store has gone.
void give_process_memory_back();

}  // namespace kov
