#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "windows/com/Abandon.h"
#include "windows/com/Windows.h"

/// @file
/// Texts between the system's UTF-8 and Windows' UTF-16. Halves of surrogate pairs pass both ways.
namespace plotsmith::com {

/// Owns a BSTR, or none. The type BSTR itself is a mere pointer to letters, and no function here takes one:
/// the length of a BSTR is read from the memory in front of it, which other letters don't have.
class OwnedBstr {
 public:
  OwnedBstr() = default;
  OwnedBstr(OwnedBstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  OwnedBstr& operator=(OwnedBstr&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  OwnedBstr(const OwnedBstr&) = delete;
  OwnedBstr& operator=(const OwnedBstr&) = delete;
  ~OwnedBstr() {
    if (!IsAbandoned()) SysFreeString(text_);
  }

  /// Takes over what a function of Automation has allocated; null is an empty text.
  static OwnedBstr Attach(BSTR text) {
    OwnedBstr owned;
    owned.text_ = text;
    return owned;
  }
  /// Where a function of Automation stores its result. Call it once.
  BSTR* Put() { return &text_; }
  /// The letters, which may contain zeros.
  std::wstring_view View() const {
    return text_ == nullptr ? std::wstring_view() : std::wstring_view(text_, SysStringLen(text_));
  }

 private:
  BSTR text_ = nullptr;
};

/// The text of `length` units.
std::string Utf8(const OLECHAR* text, std::size_t length);
/// The text of a BSTR.
std::string Utf8(const OwnedBstr& text);
/// The text of a VARIANT of the type VT_BSTR.
std::string TextOf(const VARIANT& value);
/// A text for functions of Windows that take a terminating zero.
std::wstring Wide(std::string_view text);
/// A new BSTR, which the caller frees. Error 7 if there is no memory for it.
BSTR NewBstr(std::string_view text);

}  // namespace plotsmith::com
