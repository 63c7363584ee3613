#pragma once

namespace plotsmith::runtime {

/// Returns the number of processors that this process may use, at least 1. As many of its threads can run at
/// the same time.
unsigned ProcessorCount();

}  // namespace plotsmith::runtime
