#pragma once

#include <cstdint>

namespace plotsmith::forms {

/// An OLE colour: red, green and blue from the lowest byte up, or 0x80000000 and the index of a system
/// colour.
using Color = std::uint32_t;

/// System colours, by their index in GetSysColor.
///@{
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kToolTipBackground = 0x80000018;
///@}
inline constexpr Color kWhite = 0x00FFFFFF;

}  // namespace plotsmith::forms
