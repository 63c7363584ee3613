#include "windows/com/Proxies.h"

namespace plotsmith::com {

namespace {
std::int32_t live = 0;
}

std::int32_t LiveProxies() { return live; }
CountedProxy::CountedProxy() { ++live; }
CountedProxy::~CountedProxy() { --live; }

}  // namespace plotsmith::com
