#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace plotsmith::cli {

/// The result of a task in a worker process.
struct TaskEnding {
  std::string report;  ///< The result of the task.
  /// The reason if the process died, such as "Segmentation fault"; empty if the task was completed.
  std::optional<std::string> crash;
};

/// Tasks that are distributed among worker processes. Each process performs one task after the other. The
/// system keeps its state in variables of modules, so two simultaneous tasks need two processes. A task that
/// crashes ends only its own process.
struct WorkerTasks {
  std::size_t count = 0;  ///< The number of tasks.
  /// Performs a task, counted from 0, in a worker process.
  std::function<std::string(std::size_t)> run;
  /// Called in this process after each task, in the order in which the tasks end.
  std::function<void(std::size_t, TaskEnding)> ended;
};

/// Performs all tasks in at most `processes` processes; on Windows, all in this process. After an interrupt
/// (Ctrl-C) or a termination, the workers are ended and the rest is left undone. Returns the number of that
/// signal, or 0. Throws std::system_error if no worker can be started.
int RunInWorkers(const WorkerTasks& tasks, std::size_t processes);

/// Returns the number of processes that use the machine fully: two for each processor that this process may
/// use, because a process waits about half of its time for the disk. It is one on Windows.
std::size_t UsualProcesses();

}  // namespace plotsmith::cli
