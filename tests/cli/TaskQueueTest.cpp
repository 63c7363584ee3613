#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "cli/render/TaskQueue.h"
#include "runtime/Processors.h"

namespace plotsmith {
namespace {

using cli::TaskQueue;
using Order = TaskQueue::Order;

std::string MessageOf(const std::exception_ptr& failure) {
  try {
    if (failure) std::rethrow_exception(failure);
    return {};
  } catch (const std::runtime_error& e) {
    return e.what();
  }
}

TEST(TaskQueueTest, DoesEachTaskOnce) {
  for (const Order order : {Order::kAny, Order::kInTurn}) {
    for (const int count : {0, 1, 2, 3, 17, 500}) {
      std::vector<std::atomic<int>> done(static_cast<std::size_t>(count));
      TaskQueue tasks(order);
      for (auto& one : done) tasks.Add([&one] { ++one; });
      const auto outcome = tasks.Finish();
      EXPECT_EQ(outcome.done, done.size());
      EXPECT_EQ(outcome.failure, nullptr);
      EXPECT_TRUE(std::all_of(done.begin(), done.end(), [](const auto& times) { return times == 1; }));
    }
  }
}

TEST(TaskQueueTest, OrderedTasksAreDoneByOneThread) {
  std::vector<int> order;
  std::vector<std::thread::id> threads;
  TaskQueue tasks(Order::kInTurn);
  for (int i = 0; i < 100; ++i) {
    tasks.Add([&, i] {
      order.push_back(i);
      threads.push_back(std::this_thread::get_id());
    });
  }
  tasks.Finish();
  std::vector<int> expected(100);
  std::iota(expected.begin(), expected.end(), 0);
  EXPECT_EQ(order, expected);
  EXPECT_EQ(threads, std::vector(100, threads.front()));
}

TEST(TaskQueueTest, ReportsTheFirstFailureAndTheTasksBeforeIt) {
  for (const Order order : {Order::kAny, Order::kInTurn}) {
    for (const std::size_t bad : {0u, 1u, 5u, 60u}) {
      std::atomic<std::size_t> doneBefore = 0;
      TaskQueue tasks(order);
      for (std::size_t i = 0; i < 100; ++i) {
        tasks.Add([&doneBefore, i, bad] {
          if (i == bad || i == bad + 30) throw std::runtime_error(std::to_string(i));
          if (i < bad) ++doneBefore;
        });
      }
      const auto outcome = tasks.Finish();
      EXPECT_EQ(outcome.done, bad);
      EXPECT_EQ(MessageOf(outcome.failure), std::to_string(bad));
      EXPECT_EQ(doneBefore, bad);
      EXPECT_TRUE(tasks.HasFailed());
    }
  }
}

TEST(TaskQueueTest, PreparesBeforeTheTasksOfItsThread) {
  for (const int count : {0, 1, 2, 100}) {
    std::vector<std::thread::id> prepared;
    std::vector<std::thread::id> threads;
    {
      TaskQueue tasks(Order::kInTurn);
      tasks.StartThreads([&] { prepared.push_back(std::this_thread::get_id()); });
      for (int i = 0; i < count; ++i) {
        tasks.Add([&] {
          if (!prepared.empty()) threads.push_back(std::this_thread::get_id());
        });
      }
      EXPECT_EQ(tasks.Finish().done, static_cast<std::size_t>(count));
    }
    if (runtime::ProcessorCount() == 1) continue;  // There are no threads.
    ASSERT_EQ(prepared.size(), 1u);
    EXPECT_NE(prepared.front(), std::this_thread::get_id());
    EXPECT_EQ(threads, std::vector(static_cast<std::size_t>(count), prepared.front()));
  }
}

TEST(TaskQueueTest, AnAbandonedQueueDropsWaitingTasks) {
  std::atomic<int> done = 0;
  {
    TaskQueue tasks(Order::kInTurn);
    tasks.Add([&] { ++done; });
  }
  EXPECT_EQ(done, 0);
}

}  // namespace
}  // namespace plotsmith
