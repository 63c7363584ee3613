#include "tests/support/SaveFailures.h"

namespace plotsmith::test {

// The C library of Windows is not one whose functions a program can replace. Saves that fail are tested on
// Linux.
void SaveThroughFailures(const std::string& path, const Save& save) { save(path); }

}  // namespace plotsmith::test
