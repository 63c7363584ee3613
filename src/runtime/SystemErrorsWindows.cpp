#include <array>
#include <cstring>
#include <windows.h>

#include "runtime/Strings.h"
#include "runtime/SystemErrors.h"
#include "runtime/WindowsErrors.h"

namespace plotsmith::runtime {

std::string SystemErrorText(int error) { return std::strerror(error); }

std::string WindowsErrorText(std::uint32_t error) {
  std::array<wchar_t, 512> text{};
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                text.data(), static_cast<DWORD>(text.size()), nullptr);
  while (length > 0 && text[length - 1] <= L' ') --length;
  return ToUtf8(std::u16string(text.begin(), text.begin() + length));
}

}  // namespace plotsmith::runtime
