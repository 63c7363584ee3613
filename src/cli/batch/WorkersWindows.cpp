#include "cli/batch/Workers.h"

namespace plotsmith::cli {

// Windows has no fork, so a worker would have to be started from the command line with all its data.
int RunInWorkers(const WorkerTasks& tasks, std::size_t) {
  for (std::size_t task = 0; task < tasks.count; ++task) tasks.ended(task, {tasks.run(task), std::nullopt});
  return 0;
}

std::size_t UsualProcesses() { return 1; }

}  // namespace plotsmith::cli
