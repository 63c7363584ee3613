#include "tests/support/SaveFailures.h"

namespace plotsmith::test {

// A program can't replace functions of Windows' C library. Failing saves are tested on Linux.
void SaveThroughFailures(const std::string& path, const Save& save) { save(path); }

}  // namespace plotsmith::test
