#pragma once

#include <array>
#include <string_view>

#include "pages/pictures/Picture.h"

/// The sample pictures of the wizard's pages: small charts that show what a setting does.
namespace plotsmith {

/// The names of the sample pictures.
extern const std::array<std::string_view, 41> aSamplePictureNames;

/// Draws the picture with this name. The comparison is case-sensitive. Raises error 5 if there is no such
/// picture.
pictures::Picture SamplePicture(std::string_view sName);

}  // namespace plotsmith
