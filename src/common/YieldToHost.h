#pragma once

namespace plotsmith {

/// Lets the host handle its events, at most once in two seconds. Long loops call this.
void YieldToHost();
/// Forgets when YieldToHost last did so.
void ResetYield();

}  // namespace plotsmith
