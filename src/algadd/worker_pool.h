#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace kov {

/// A few threads that stay for the life of the pool and share the tasks of one job after the other. The
/// thread that gives a job works on it, too; with one thread it does all of it alone.
class WorkerPool {
 public:
  /// The calling thread counts: threads - 1 others are started, with the first job that has a use for them.
  explicit WorkerPool(int threads);
  ~WorkerPool();
  WorkerPool(const WorkerPool&) = delete;
  WorkerPool& operator=(const WorkerPool&) = delete;

  int threads() const { return threads_; }

  /// A task's number, and which of the threads works on it: 0 ... threads() - 1, 0 for the calling one.
  using Task = std::function<void(std::size_t task, std::size_t thread)>;

  /// Calls the task for 0 ... count - 1, each once, in any order and on any thread, and returns when all are
  /// done. The calling thread calls between after each of its tasks, once when no task is left for it, and
  /// every few milliseconds while it waits for the others. Of what tasks and between throw, the first that is
  /// noticed is thrown here, when no task runs any more; tasks that have not begun by then are left out.
  void run(std::size_t count, const Task& task, const std::function<void()>& between);

 private:
  void start_threads();
  void serve(std::size_t thread);
  void work(std::size_t thread, const std::function<void()>* between);
  void note_failure();

  const int threads_;
  std::vector<std::thread> others_;

  std::mutex mutex_;
  std::condition_variable job_given_;
  std::condition_variable worker_idle_;
  bool closing_ = false;
  std::size_t jobs_ = 0;
  std::size_t busy_ = 0;
  const Task* task_ = nullptr;
  std::size_t count_ = 0;
  std::size_t next_ = 0;
  std::exception_ptr failure_;
};

/// As many threads as the processor runs at once, at least 1.
int processor_threads();

}  // namespace kov
