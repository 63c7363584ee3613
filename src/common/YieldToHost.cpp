#include "common/YieldToHost.h"

#include <cmath>
#include <cstdint>

#include "common/App.h"

namespace plotsmith {

namespace {

std::int32_t lLastYieldTime = 0;  // whole seconds since midnight

}  // namespace

void YieldToHost() {
  const double dNow = App.Desktop->Timer();
  // After midnight the difference is negative until the clock has passed the stored time. There is no yield
  // then.
  if (dNow - lLastYieldTime < 2.0) return;
  lLastYieldTime = static_cast<std::int32_t>(std::nearbyint(dNow));
  App.Forms->DoEvents();
}

void ResetYield() { lLastYieldTime = 0; }

}  // namespace plotsmith
