#include "windows/excel/Proxy.h"

namespace plotsmith::proxies {

namespace {
/// MsoTriState.
constexpr std::int32_t kTrue = -1, kFalse = 0;
}  // namespace

#include "windows/excel/ProxyLines.h"
#include "windows/excel/members/Chart.inc"

}  // namespace plotsmith::proxies
