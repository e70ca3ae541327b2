#include "algadd/worker_pool.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <stdexcept>

namespace kov {
namespace {

const auto nothing = [] {};

TEST(WorkerPool, DoesEveryTaskOnceWhateverTheNumberOfThreads) {
  for (const int threads : {1, 2, 3, 7}) {
    WorkerPool pool(threads);
    for (const std::size_t count : {0U, 1U, 2U, 5U, 100U}) {
      std::array<std::atomic<int>, 100> calls{};
      pool.run(
          count, [&](std::size_t task, std::size_t) { ++calls.at(task); }, nothing);
      for (std::size_t task = 0; task < calls.size(); ++task) EXPECT_EQ(calls[task], task < count ? 1 : 0);
    }
  }
}

TEST(WorkerPool, TellsEveryTaskItsThread) {
  WorkerPool pool(3);
  const auto caller = std::this_thread::get_id();
  std::array<std::atomic<int>, 3> at_work{};
  pool.run(
      200,
      [&](std::size_t, std::size_t thread) {
        EXPECT_EQ(thread == 0, std::this_thread::get_id() == caller);
        EXPECT_EQ(++at_work.at(thread), 1) << "a thread has one task at a time";
        --at_work.at(thread);
      },
      nothing);
}

TEST(WorkerPool, TakesOneJobAfterTheOther) {
  WorkerPool pool(2);
  std::atomic<int> sum = 0;
  for (int job = 0; job < 2000; ++job)
    pool.run(
        3, [&](std::size_t task, std::size_t) { sum += static_cast<int>(task); }, nothing);
  EXPECT_EQ(sum, 2000 * 3);
}

TEST(WorkerPool, AtLeastTheCallerWorks) {
  WorkerPool pool(-3);
  EXPECT_EQ(pool.threads(), 1);
  EXPECT_GE(processor_threads(), 1);
}

TEST(WorkerPool, BreathesOnTheCallingThread) {
  WorkerPool pool(2);
  const auto caller = std::this_thread::get_id();
  std::atomic<bool> released = false;
  int breaths = 0;
  pool.run(
      2,
      [&](std::size_t, std::size_t) {
        // The caller's task ends at once; the other one lasts until the caller has breathed while it waited.
        while (std::this_thread::get_id() != caller && !released) std::this_thread::yield();
      },
      [&] {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        if (++breaths == 2) released = true;
      });
  EXPECT_GE(breaths, 2);
}

TEST(WorkerPool, ThrowsWhatATaskThrowsAndCanGoOn) {
  WorkerPool pool(3);
  for (std::size_t bad = 0; bad < 5; ++bad) {
    const auto task = [&](std::size_t i, std::size_t) {
      if (i == bad) throw std::runtime_error("task");
    };
    EXPECT_THROW(pool.run(5, task, nothing), std::runtime_error);
  }
  WorkerPool alone(1);
  EXPECT_THROW(alone.run(
                   2, [](std::size_t, std::size_t) {}, [] { throw std::bad_alloc(); }),
               std::bad_alloc);
  std::atomic<int> calls = 0;
  pool.run(
      10, [&](std::size_t, std::size_t) { ++calls; }, nothing);
  EXPECT_EQ(calls, 10);
}

}  // namespace
}  // namespace kov
