#include <algorithm>
#include <sched.h>
#include <thread>

#include "runtime/Processors.h"

namespace plotsmith::runtime {

unsigned ProcessorCount() {
  cpu_set_t allowed;
  // Fails if the machine has more processors than the set can hold.
  const int count = sched_getaffinity(0, sizeof allowed, &allowed) == 0 ? CPU_COUNT(&allowed) : 0;
  return std::max(count > 0 ? static_cast<unsigned>(count) : std::thread::hardware_concurrency(), 1u);
}

}  // namespace plotsmith::runtime
