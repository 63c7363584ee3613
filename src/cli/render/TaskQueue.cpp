#include "cli/render/TaskQueue.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "runtime/Processors.h"

namespace plotsmith::cli {
namespace {

constexpr std::size_t kMostThreads = 7;
constexpr std::size_t kMostWaiting = 64;  // A task holds a chart.

std::size_t ThreadsFor(TaskQueue::Order order) {
  return std::min<std::size_t>(runtime::ProcessorCount() - 1,
                               order == TaskQueue::Order::kInTurn ? 1 : kMostThreads);
}

}  // namespace

TaskQueue::TaskQueue(Order order) : order_(order) {}

TaskQueue::~TaskQueue() {
  {
    const std::scoped_lock lock(mutex_);
    waiting_.clear();
    ending_ = true;
  }
  changed_.notify_all();
  for (std::thread& thread : threads_) thread.join();
}

void TaskQueue::StartThreads(Task preparation) {
  const std::size_t count = ThreadsFor(order_);
  try {
    for (std::size_t i = 1; i < count; ++i) threads_.emplace_back([this] { Work(); });
    // This thread is the last one, because a thread can't be created while another one loads a library.
    if (count > 0) {
      threads_.emplace_back([this, preparation = std::move(preparation)] {
        preparation();
        Work();
      });
    }
  } catch (const std::system_error&) {
    // The tasks run on fewer threads, or on the caller's.
  }
}

void TaskQueue::Add(Task task) {
  std::unique_lock lock(mutex_);
  waiting_.push_back({given_++, std::move(task)});
  if (threads_.empty()) {
    if (given_ == 1) return;
    if (given_ == 2) StartThreads([] {});
  }
  changed_.notify_all();
  WorkUntilThereAre(threads_.empty() ? 0 : kMostWaiting, lock);
}

void TaskQueue::WorkUntilThereAre(std::size_t waiting, std::unique_lock<std::mutex>& lock) {
  while (waiting_.size() > waiting) {
    if (order_ == Order::kAny || threads_.empty()) {
      DoNext(lock);
    } else {
      changed_.wait(lock);
    }
  }
}

TaskQueue::Outcome TaskQueue::Finish() {
  std::unique_lock lock(mutex_);
  WorkUntilThereAre(0, lock);
  changed_.wait(lock, [&] { return working_ == 0; });
  return {std::min(given_, firstFailed_), failure_};
}

bool TaskQueue::HasFailed() {
  const std::scoped_lock lock(mutex_);
  return failure_ != nullptr;
}

void TaskQueue::Work() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [&] { return ending_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    DoNext(lock);
  }
}

void TaskQueue::DoNext(std::unique_lock<std::mutex>& lock) {
  const Numbered task = std::move(waiting_.front());
  waiting_.pop_front();
  ++working_;
  lock.unlock();
  std::exception_ptr failure;
  try {
    task.task();
  } catch (...) {
    failure = std::current_exception();
  }
  lock.lock();
  --working_;
  if (failure && task.number < firstFailed_) {
    firstFailed_ = task.number;
    failure_ = failure;
    waiting_.clear();
  }
  changed_.notify_all();
}

}  // namespace plotsmith::cli
