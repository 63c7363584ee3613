#include <algorithm>
#include <thread>

#include "runtime/Processors.h"

namespace plotsmith::runtime {

unsigned ProcessorCount() { return std::max(std::thread::hardware_concurrency(), 1u); }

}  // namespace plotsmith::runtime
