#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "windows/com/Abandon.h"
#include "windows/com/Windows.h"

/// @file
/// Conversions of texts between UTF-8, which the system uses, and the UTF-16 of Windows. Unpaired surrogates
/// are kept in both directions.
namespace plotsmith::com {

/// Owns a BSTR, or none. No function here takes a bare BSTR. That type is only a pointer to UTF-16 units, so
/// the compiler would accept any such pointer, but only a real BSTR has its length in front of the units.
class OwnedBstr {
 public:
  OwnedBstr() = default;
  /// Takes over the BSTR of the other object.
  ///@{
  OwnedBstr(OwnedBstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  OwnedBstr& operator=(OwnedBstr&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ///@}
  OwnedBstr(const OwnedBstr&) = delete;
  OwnedBstr& operator=(const OwnedBstr&) = delete;
  ~OwnedBstr() {
    if (!IsAbandoned()) SysFreeString(text_);
  }

  /// Takes over a BSTR that a function of Automation has allocated; null is an empty text.
  static OwnedBstr Attach(BSTR text) {
    OwnedBstr owned;
    owned.text_ = text;
    return owned;
  }
  /// Returns the address where a function of Automation stores its result. Call this only once.
  BSTR* Put() { return &text_; }
  /// Returns the UTF-16 units, which may include zeros.
  std::wstring_view View() const {
    return text_ == nullptr ? std::wstring_view() : std::wstring_view(text_, SysStringLen(text_));
  }

 private:
  BSTR text_ = nullptr;
};

/// Converts `length` UTF-16 units to UTF-8.
std::string Utf8(const OLECHAR* text, std::size_t length);
/// Converts a BSTR to UTF-8.
std::string Utf8(const OwnedBstr& text);
/// Converts a VARIANT of type VT_BSTR to UTF-8.
std::string TextOf(const VARIANT& value);
/// Converts a text to UTF-16 with a terminating zero, for functions of Windows.
std::wstring Wide(std::string_view text);
/// Returns a new BSTR, which the caller frees. Raises error 7 if there isn't enough memory.
BSTR NewBstr(std::string_view text);

}  // namespace plotsmith::com
