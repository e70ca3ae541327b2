#include "algadd/process_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "algadd/worker_pool.h"

#if defined(__GLIBC__)
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace kov {
namespace {

#if defined(__GLIBC__)

/// By the allocator's own report.
std::size_t arena_count() {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* const report = open_memstream(&text, &size);
  if (report == nullptr || malloc_info(0, report) != 0) return 0;
  std::fclose(report);
  const std::string arenas(text, size);
  std::free(text);
  std::size_t count = 0;
  for (std::size_t at = 0; (at = arenas.find("<heap nr=", at)) != std::string::npos; ++at) ++count;
  return count;
}

TEST(ProcessMemory, ThreadsShareThem) {
  set_up_process_memory();
  const std::size_t before = arena_count();
  if (before == 0) GTEST_FAIL() << "no report";
  std::atomic<int> waiting = 0;
  std::vector<std::thread> threads;
  constexpr int thread_count = 12;
  for (int i = 0; i < thread_count; ++i) {
    threads.emplace_back([&] {
      const std::vector<char> piece(20'000);
      for (++waiting; waiting < thread_count;) std::this_thread::yield();
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_LE(arena_count(), std::max(before, static_cast<std::size_t>(std::max(1, processor_threads() / 8))));
}

// The address and thread sanitizers bring an allocator of their own.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KOV_OTHER_ALLOCATOR
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define KOV_OTHER_ALLOCATOR
#endif
#endif

#if !defined(KOV_OTHER_ALLOCATOR)

/// Pages that the system handed out to this thread while it wrote 64 MB in pieces as blocks take them.
long pages_for_pieces() {
  const auto pages = [] {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt;
  };
  const long before = pages();
  std::vector<std::vector<char>> pieces;
  for (int i = 0; i < 4096; ++i) pieces.emplace_back(16384, 'x');
  return pages() - before;
}

TEST(ProcessMemory, WhatWasFreedIsThereForTheNextRow) {
  set_up_process_memory();
  const long first = pages_for_pieces();
  const long second = pages_for_pieces();
  EXPECT_LT(second, std::max(200L, first / 10));
}

/// What the system has given the process, in MB.
long resident_megabytes() {
  std::ifstream status("/proc/self/statm");
  long pages = 0;
  status >> pages >> pages;
  return pages * sysconf(_SC_PAGESIZE) / (1024 * 1024);
}

TEST(ProcessMemory, IsGivenBackWhenThatIsAskedFor) {
  set_up_process_memory();
  pages_for_pieces();
  const long kept = resident_megabytes();
  give_process_memory_back();
  EXPECT_LT(resident_megabytes(), kept - 48);
}

#endif

#endif

}  // namespace
}  // namespace kov
