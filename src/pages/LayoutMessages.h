#pragma once

namespace plotsmith {

/// The message for a number format that the host refuses, used by all layout pages.
inline constexpr const char* kBadNumberFormat = "The requested number format is not supported by Excel";
/// The first entry of a list of colour columns. It means that no column is selected.
inline constexpr const char* kOneColor = "[all the same color]";

}  // namespace plotsmith
