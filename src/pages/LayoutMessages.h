#pragma once

namespace plotsmith {

/// What all layout pages with a number format say of one that the host refuses.
inline constexpr const char* kBadNumberFormat = "The requested number format is not supported by Excel";
/// The first entry of a choice of colours: none.
inline constexpr const char* kOneColor = "[all the same color]";

}  // namespace plotsmith
