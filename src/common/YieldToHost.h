#pragma once

namespace plotsmith {

/// Lets the host handle its events, at most every two seconds. Long loops call this.
void YieldToHost();
/// Resets the time of the last call, so that the next YieldToHost yields at once.
void ResetYield();

}  // namespace plotsmith
