#include "windows/excel/Proxy.h"

namespace plotsmith::proxies {

#include "windows/excel/ProxyLines.h"
#include "windows/excel/members/Chart.inc"

}  // namespace plotsmith::proxies
