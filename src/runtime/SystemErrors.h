#pragma once

#include <cstdint>
#include <string>

namespace plotsmith::runtime {

/// Returns the text of an errno value, in English in every locale: "No space left on device".
std::string SystemErrorText(int error);

#ifdef _WIN32
/// Returns Windows' message for a Win32 error or an HRESULT, in the user's language and without the line end;
/// empty if Windows has none.
std::string WindowsErrorText(std::uint32_t error);
#endif

}  // namespace plotsmith::runtime
