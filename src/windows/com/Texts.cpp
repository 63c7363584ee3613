#include "windows/com/Texts.h"

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith::com {

static_assert(sizeof(OLECHAR) == sizeof(char16_t));

std::string Utf8(const OLECHAR* text, std::size_t length) {
  return runtime::ToUtf8({reinterpret_cast<const char16_t*>(text), length});
}

std::string Utf8(const OwnedBstr& text) { return Utf8(text.View().data(), text.View().size()); }

std::string TextOf(const VARIANT& value) {
  const BSTR text = V_BSTR(&value);
  return text == nullptr ? std::string() : Utf8(text, SysStringLen(text));
}

std::wstring Wide(std::string_view text) {
  const std::u16string units = runtime::ToUtf16(text);
  return {units.begin(), units.end()};
}

BSTR NewBstr(std::string_view text) {
  const std::u16string units = runtime::ToUtf16(text);
  BSTR result =
      SysAllocStringLen(reinterpret_cast<const OLECHAR*>(units.data()), static_cast<UINT>(units.size()));
  if (result == nullptr) throw runtime::RuntimeError(runtime::error::kOutOfMemory);
  return result;
}

}  // namespace plotsmith::com
