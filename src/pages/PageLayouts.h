#pragma once

#include "forms/Layout.h"
#include "pages/ControlGroups.h"
#include "pages/Page.h"

/// @file
/// Parts that the layouts of several pages have in common.
namespace plotsmith {

/// A page with its buttons at the foot.
forms::Layout WithButtons(forms::Layout oBody, const WizardButtons& oButtons);
/// Pictures in the same place.
forms::Layout StackOf(const PictureGroup& oPictures);
forms::Layout StackOf(const LegendPictures& oLegend);
/// A label in front of each box, so that all of them line up.
///@{
forms::Layout GridOf(const AxisBoxes& oAxes);
forms::Layout GridOf(const NumberFormatBox& oBox);
forms::Layout GridOf(const NumberFormatBox& oBox, const AxisBoxes& oAxes);
///@}
forms::Layout Framed(const CommentBox& oComment);

}  // namespace plotsmith
