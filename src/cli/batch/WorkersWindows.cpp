#include "cli/batch/Workers.h"

namespace plotsmith::cli {

// Windows can't fork: a worker would have to be started from the command line and told everything anew.
int RunInWorkers(const WorkerTasks& tasks, std::size_t) {
  for (std::size_t task = 0; task < tasks.count; ++task) tasks.ended(task, {tasks.run(task), std::nullopt});
  return 0;
}

std::size_t UsualProcesses() { return 1; }

}  // namespace plotsmith::cli
