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

/// Works on tasks in threads beside the one that gives them, which has other work between two tasks. With no
/// second processor, or where no thread can be made, the tasks are done by the thread that gives them.
class TaskQueue {
 public:
  using Task = std::function<void()>;
  /// Whether several tasks may be worked on at a time, or each has to wait for those before it. Tasks that
  /// wait for each other are all done by one thread.
  enum class Order { kAny, kInTurn };

  /// Makes an empty queue. Threads are started with the second task.
  explicit TaskQueue(Order order);
  /// Waits for the tasks that are being worked on. Those that wait are dropped.
  ~TaskQueue();
  TaskQueue(const TaskQueue&) = delete;
  TaskQueue& operator=(const TaskQueue&) = delete;

  /// Takes a task. The first one waits for the second or for Finish, as a thread isn't worth while for one.
  /// Where many wait already, this works on some of them, or waits until others have.
  void Add(Task task);
  /// Waits until all is done. Returns how many of the tasks were done before the first one that failed, in
  /// the order in which they were given; `failure` is what that one threw. After a failure, tasks that wait
  /// are dropped.
  std::size_t Finish(std::exception_ptr& failure);
  /// Whether a task has failed.
  bool HasFailed();

 private:
  struct Numbered {
    std::size_t number = 0;
    Task task;
  };

  void Start();
  void Work();
  /// Works on waiting tasks, or waits for the threads that do, until only so many are left.
  void WorkUntilThereAre(std::size_t waiting, std::unique_lock<std::mutex>& lock);
  /// Takes the first of the waiting tasks and does it; the lock is released meanwhile.
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
