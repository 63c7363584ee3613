#pragma once

namespace plotsmith::runtime {

/// Returns the number of threads of this process that can run at the same time, which is the number of
/// processors that it may use; at least 1.
unsigned ProcessorCount();

}  // namespace plotsmith::runtime
