#pragma once

namespace plotsmith::runtime {

/// How many threads of this process can work at a time: the processors that it may run on, at least 1.
unsigned ProcessorCount();

}  // namespace plotsmith::runtime
