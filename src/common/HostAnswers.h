#pragma once

#include <string>

#include "host/excel/Application.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The result of FormatSampleNumber for a format that the host refuses.
inline constexpr const char* kInvalidFormat = "(invalid format)";
/// Returns 12345.6789 in a number format, as the host displays it, or kInvalidFormat. It uses a cell of the
/// definitions' sheet and clears it again.
std::string FormatSampleNumber(const std::string& sNumberFormat);

/// Returns the host's version as a number, such as 16.
double HostVersion(const runtime::Ref<excel::Application>& oHost);

}  // namespace plotsmith
