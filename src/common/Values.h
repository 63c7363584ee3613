#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/ErrorBlocks.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

namespace plotsmith {

/// Returns the value as a Boolean; False if it can't be converted.
bool SafeBool(const runtime::Variant& vValue);
/// Returns the value as a string; "" if it can't be converted.
std::string SafeString(const runtime::Variant& vValue);
/// Returns True if the list contains the value. The comparison is case-sensitive.
bool ArrayContains(std::string_view sValue, std::span<const std::string_view> aValues);

/// Returns True if the collection has the key. Only error 5 of the read means that the key is missing; any
/// other error means that it exists.
template <class T>
bool CollectionHasKey(std::string_view sKey, const runtime::Ref<runtime::Collection<T>>& oCollection) {
  bool bHas = true;
  HandleErrors(
      [&] { oCollection->Item(sKey); },
      [&](const runtime::RuntimeError& oErr) { bHas = oErr.Number() != runtime::error::kInvalidCall; });
  return bHas;
}

}  // namespace plotsmith
