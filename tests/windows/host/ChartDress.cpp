#include "tests/windows/host/Dress.h"

namespace plotsmith::dress {

#include "tests/windows/host/DressLines.h"
#include "windows/excel/members/Chart.inc"

}  // namespace plotsmith::dress
