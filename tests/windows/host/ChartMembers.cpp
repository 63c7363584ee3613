#include "tests/windows/host/Automation.h"

namespace plotsmith::automation {

#include "tests/windows/host/MemberLines.h"
#include "windows/excel/members/Chart.inc"

}  // namespace plotsmith::automation
