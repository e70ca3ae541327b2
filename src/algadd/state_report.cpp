#include "algadd/state_report.h"

#include <sys/mman.h>

#include <algorithm>

#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {

namespace {

constexpr std::size_t bytes_per_megabyte = 1'000'000;
constexpr std::size_t most_megabytes = 1'000'000;

// A mapping instead of operator new: nothing is written, no allocator keeps any of it, and the checking
// allocators of sanitizers take it for what it is.
bool can_allocate_megabytes(std::size_t megabytes) {
  const std::size_t bytes = megabytes * bytes_per_megabyte;
  void* const block = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (block == MAP_FAILED) return false;
  munmap(block, bytes);
  return true;
}

std::string duration_text(std::int64_t seconds) {
  return int_text(seconds / 3600) + " hours " + int_text(seconds % 3600 / 60) + " min " +
         int_text(seconds % 60) + " sec";
}

std::string average_text(const Algadd::LastRun& run) {
  constexpr int digits = 6;
  if (run.steps == 0) return {};
  const double average = static_cast<double>(run.seconds) / static_cast<double>(run.steps);
  return "\n(average: " + floating_text(average, digits) + " seconds per step)";
}

}  // namespace

const char* const memory_probe_offer = "\n\nPress <All> to check all available memory\nelse <OK>";

std::string state_report(const Lmap& lmap, const Algadd& algadd) {
  return "Lattice:" + int_text(static_cast<std::int64_t>(lmap.count())) +
         " non-zero points\nused bytes:" + int_text(static_cast<std::int64_t>(lmap.estimated_bytes())) +
         timing_text(algadd.last_run);
}

std::string timing_text(const Algadd::LastRun& run) {
  if (run.seconds == 0) return {};
  return "\n\nThe last " + int_text(run.steps) + " steps of Algadd needed " + int_text(run.seconds) +
         " sec\n resp. " + duration_text(run.seconds) + average_text(run);
}

std::size_t allocatable_megabytes() { return largest_allocatable(most_megabytes, can_allocate_megabytes); }

std::string allocatable_text(std::size_t megabytes) {
  return int_text(static_cast<std::int64_t>(megabytes)) +
         " MB are allocatable\nusing RAM and virtual memory on HD";
}

std::size_t largest_allocatable(std::size_t cap, const std::function<bool(std::size_t)>& can_allocate) {
  std::size_t possible = 0;
  std::size_t trial = 1;
  while (trial <= cap && can_allocate(trial)) {
    possible = trial;
    trial *= 2;
  }
  for (std::size_t impossible = std::min(trial, cap + 1); impossible - possible > 1;) {
    const std::size_t middle = possible + (impossible - possible) / 2;
    (can_allocate(middle) ? possible : impossible) = middle;
  }
  return possible;
}

}  // namespace kov
