#include "support/failing_allocation.h"

#include <cstddef>
#include <cstdlib>
#include <limits>

namespace kov {
namespace {

/// Allocations up to and including the one that fails; not above 0 when none does.
constinit thread_local std::int64_t allocations_left = 0;

/// The largest allocation that succeeds.
constinit thread_local std::size_t largest_allocation = std::numeric_limits<std::size_t>::max();

void* allocate(std::size_t size) {
  if (size > largest_allocation) throw std::bad_alloc();
  if (allocations_left > 0 && --allocations_left == 0) throw std::bad_alloc();
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void* allocate_or_null(std::size_t size) noexcept {
  try {
    return allocate(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

FailingAllocation::FailingAllocation(std::int64_t k) noexcept { allocations_left = k; }

FailingAllocation::~FailingAllocation() { allocations_left = 0; }

bool FailingAllocation::happened() const noexcept { return allocations_left == 0; }

LimitedAllocations::LimitedAllocations(std::size_t limit) noexcept { largest_allocation = limit; }

LimitedAllocations::~LimitedAllocations() { largest_allocation = std::numeric_limits<std::size_t>::max(); }

}  // namespace kov

// Every form of new and delete that the tests' code reaches, all on malloc and free, so that sanitizers see
// matching pairs: a sanitizer has its own forms without an exception, so these are here, too.
void* operator new(std::size_t size) { return kov::allocate(size); }
void* operator new[](std::size_t size) { return kov::allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return kov::allocate_or_null(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return kov::allocate_or_null(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
