#include "controller/ResetSystem.h"

#include "builder/BuilderVariables.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {

void ResetSystem() {
  ResetRunVariables();
  ResetBuilderVariables();
  ResetYield();
  runtime::memoryRanOut = false;
}

}  // namespace plotsmith
