#pragma once

#include <cstdint>
#include <string>

namespace plotsmith::runtime {

/// Returns Windows' message for a Win32 error or an HRESULT, in the user's language and without the line end;
/// empty if Windows has none. It exists only on Windows.
std::string WindowsErrorText(std::uint32_t error);

}  // namespace plotsmith::runtime
