#pragma once

#include <cstdint>

namespace plotsmith::forms {

/// An OLE colour: red + 256 green + 65536 blue, or 0x80000000 plus the index of a system colour.
using Color = std::uint32_t;

/// System colours, by their index in the Windows function GetSysColor.
///@{
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kToolTipBackground = 0x80000018;
///@}
/// White, the background of input controls.
inline constexpr Color kWhite = 0x00FFFFFF;

}  // namespace plotsmith::forms
