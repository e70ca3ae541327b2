#pragma once

namespace kov {

/// Lets the threads of the program share the arenas of the memory allocator, one for every eight threads,
/// where it has several. To be called once, when the program starts; it does not show in any result.
///
/// An arena a thread, as the allocator would have it, keeps the memory of the rows that are deleted where the
/// other threads, which make the next row, cannot take it: a run that deletes its rows needs a sixth more
/// than both of them. Rows take pieces of memory so seldom, some for every thousands of points, that eight
/// threads hardly meet.
void share_memory_arenas();

/// How many of them there may be.
int most_memory_arenas();

}  // namespace kov
