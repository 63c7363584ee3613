#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace plotsmith::cli {

/// Runs tasks in threads while the calling thread does other work between two tasks. With only one processor,
/// or if no thread can be created, the calling thread runs the tasks.
class TaskQueue {
 public:
  /// A function to run.
  using Task = std::function<void()>;
  /// Whether tasks may run at the same time. Tasks that must run in turn are all run by the same thread.
  enum class Order {
    kAny,     ///< Several tasks at the same time.
    kInTurn,  ///< One task after the other.
  };

  /// Makes an empty queue. Its threads are started with the second task, or by StartThreads.
  explicit TaskQueue(Order order);
  /// Waits for the running tasks, and discards the waiting ones.
  ~TaskQueue();
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;

  /// Starts the threads. One of them runs `preparation`, which must not throw, before its first task. With
  /// only one processor, or if no thread can be created, `preparation` isn't run.
  void StartThreads(Task preparation);
  /// Adds a task. If no threads run yet, the first task is not started until the second one or until Finish,
  /// because one task isn't worth a thread. If many tasks are waiting, this runs some of them, or waits until
  /// the threads have run some.
  void Add(Task task);
  /// The result of all tasks.
  struct Outcome {
    std::size_t done = 0;        ///< The number of tasks, in the order of Add, before the first failed one.
    std::exception_ptr failure;  ///< The exception of the first failed task; null if none has failed.
  };
  /// Waits until all tasks are done. After a failure, waiting tasks are discarded.
  Outcome Finish();
  /// Returns true if a task has failed.
  bool HasFailed();

 private:
  struct Numbered {
    std::size_t number = 0;
    Task task;
  };

  void Work();
  /// Runs waiting tasks, or waits for the threads to run them, until at most `waiting` are left.
  void WorkUntilThereAre(std::size_t waiting, std::unique_lock<std::mutex>& lock);
  /// Runs the first waiting task. The lock is released meanwhile.
  void DoNext(std::unique_lock<std::mutex>& lock);

  const Order order_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Numbered> waiting_;
  std::size_t given_ = 0, working_ = 0;
  std::size_t firstFailed_ = static_cast<std::size_t>(-1);
  std::exception_ptr failure_;
  bool ending_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace plotsmith::cli
