#pragma once

#include <utility>

#include "windows/com/Abandon.h"
#include "windows/com/Windows.h"

namespace plotsmith::com {

/// A VARIANT that frees its content.
class OwnedVariant {
 public:
  /// Makes a VARIANT of type VT_EMPTY.
  OwnedVariant() { VariantInit(&value_); }
  /// Takes over the content of `value`.
  explicit OwnedVariant(const VARIANT& value) : value_(value) {}
  /// Takes over the content of the other VARIANT.
  ///@{
  OwnedVariant(OwnedVariant&& other) noexcept : value_(other.Detach()) {}
  OwnedVariant& operator=(OwnedVariant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ///@}
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
  ~OwnedVariant() {
    if (!IsAbandoned()) VariantClear(&value_);
  }

  /// Returns the value. This object still owns it.
  const VARIANT& Get() const { return value_; }
  /// Returns the address where a function stores its result. Frees the old content first.
  VARIANT* Put() {
    VariantClear(&value_);
    return &value_;
  }
  /// Gives the value to the caller, who must clear it with VariantClear.
  VARIANT Detach() {
    VARIANT value = value_;
    VariantInit(&value_);
    return value;
  }

 private:
  VARIANT value_;
};

}  // namespace plotsmith::com
