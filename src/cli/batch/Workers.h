#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace plotsmith::cli {

/// How a task ended that a worker process had.
struct TaskEnding {
  std::string report;  ///< what the task answered
  /// How the process died over the task, "Segmentation fault"; nothing if the task came to its end.
  std::optional<std::string> death;
};

/// Tasks that are shared out to worker processes, of which each does one after the other. The system keeps
/// its state in variables of modules, so that two tasks at a time need two processes; and a task that crashes
/// takes only its own process along.
struct WorkerTasks {
  std::size_t count = 0;
  /// Does a task, from 0, in a worker process.
  std::function<std::string(std::size_t)> run;
  /// A task has ended; called in this process, in the order in which the tasks end.
  std::function<void(std::size_t, TaskEnding)> ended;
};

/// Runs all tasks in at most `processes` at a time; under Windows all in this process. Where an interrupt
/// (Ctrl-C) or a termination arrives, the workers are ended and the rest is left; answers the number of that
/// signal, or 0. Throws std::system_error if there can't be any worker.
int RunInWorkers(const WorkerTasks& tasks, std::size_t processes);

/// How many processes keep this machine busy with workbooks: two for each processor, as a process spends
/// about half of its time waiting for what it has saved to reach the disk. One under Windows.
std::size_t UsualProcesses();

}  // namespace plotsmith::cli
