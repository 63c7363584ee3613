#pragma once

#include <cstdint>

namespace plotsmith::com {

/// The number of proxies of the host's objects. Each holds one reference to the host, and the host can't end
/// before all are released.
std::int32_t LiveProxies();

/// Counts as one live proxy as long as it exists.
class CountedProxy {
 public:
  CountedProxy();
  ~CountedProxy();
  CountedProxy(const CountedProxy&) = delete;
  CountedProxy& operator=(const CountedProxy&) = delete;
};

}  // namespace plotsmith::com
