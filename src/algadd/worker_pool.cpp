#include "algadd/worker_pool.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace kov {

namespace {

constexpr std::chrono::milliseconds wait_between_breaths{5};

}  // namespace

int processor_threads() { return std::max(1, static_cast<int>(std::thread::hardware_concurrency())); }

WorkerPool::WorkerPool(int threads) : threads_(std::max(1, threads)) {}

WorkerPool::~WorkerPool() {
  {
    const std::lock_guard lock(mutex_);
    closing_ = true;
  }
  job_given_.notify_all();
  for (std::thread& other : others_) other.join();
}

void WorkerPool::run(std::size_t count, const Task& task, const std::function<void()>& between) {
  if (count > 1) start_threads();
  {
    const std::lock_guard lock(mutex_);
    task_ = &task;
    count_ = count;
    next_ = 0;
    failure_ = nullptr;
    ++jobs_;
  }
  if (count > 1) job_given_.notify_all();
  work(0, &between);
  const auto breathe = [&] {
    try {
      between();
    } catch (...) {
      note_failure();
    }
  };
  breathe();
  std::unique_lock lock(mutex_);
  while (busy_ != 0) {
    if (worker_idle_.wait_for(lock, wait_between_breaths, [this] { return busy_ == 0; })) break;
    lock.unlock();
    breathe();
    lock.lock();
  }
  task_ = nullptr;
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

// A system that grants no further thread leaves the job to those that there are.
void WorkerPool::start_threads() {
  try {
    while (static_cast<int>(others_.size()) + 1 < threads_) {
      others_.emplace_back([this, thread = others_.size() + 1] { serve(thread); });
    }
  } catch (const std::system_error&) {
  }
}

void WorkerPool::serve(std::size_t thread) {
  std::size_t served = 0;
  for (;;) {
    {
      std::unique_lock lock(mutex_);
      job_given_.wait(lock, [&] { return closing_ || (jobs_ != served && task_ != nullptr); });
      if (closing_) return;
      served = jobs_;
      ++busy_;
    }
    work(thread, nullptr);
    {
      const std::lock_guard lock(mutex_);
      --busy_;
    }
    worker_idle_.notify_one();
  }
}

void WorkerPool::work(std::size_t thread, const std::function<void()>* between) {
  for (;;) {
    std::size_t mine = 0;
    const Task* task = nullptr;
    {
      const std::lock_guard lock(mutex_);
      if (next_ == count_ || failure_) return;
      mine = next_++;
      task = task_;
    }
    try {
      (*task)(mine, thread);
      if (between != nullptr) (*between)();
    } catch (...) {
      note_failure();
    }
  }
}

void WorkerPool::note_failure() {
  const std::lock_guard lock(mutex_);
  if (!failure_) failure_ = std::current_exception();
}

}  // namespace kov
