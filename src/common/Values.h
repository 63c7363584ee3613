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

/// The value as a Boolean. A value that can't be converted is False.
bool SafeBool(const runtime::Variant& vValue);
/// The value as a string. A value that can't be converted is "".
std::string SafeString(const runtime::Variant& vValue);
/// Whether the list has the value. The comparison is case-sensitive.
bool ArrayContains(std::string_view sValue, std::span<const std::string_view> aValues);

/// Whether the collection has the key. Only error 5 of the read means that the key is missing; any other
/// error counts as present.
template <class T>
bool CollectionHasKey(std::string_view sKey, const runtime::Ref<runtime::Collection<T>>& oCollection) {
  bool bHas = true;
  HandleErrors(
      [&] { oCollection->Item(sKey); },
      [&](const runtime::RuntimeError& oErr) { bHas = oErr.Number() != runtime::error::kInvalidCall; });
  return bHas;
}

}  // namespace plotsmith
