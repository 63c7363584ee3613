#include "common/Values.h"

#include <algorithm>

namespace plotsmith {

using runtime::Variant;

bool SafeBool(const Variant& vValue) {
  return ValueOr(false, [&] { return runtime::CBool(vValue); });
}

std::string SafeString(const Variant& vValue) {
  return ValueOr(std::string(), [&] { return runtime::CStr(vValue); });
}

bool ArrayContains(std::string_view sValue, std::span<const std::string_view> aValues) {
  return std::find(aValues.begin(), aValues.end(), sValue) != aValues.end();
}

}  // namespace plotsmith
