#pragma once

#include "forms/Layout.h"
#include "pages/ControlGroups.h"
#include "pages/Page.h"

/// @file
/// Parts of layouts that several pages use.
namespace plotsmith {

/// Returns the layout of a page with its buttons at the bottom.
forms::Layout WithButtons(forms::Layout oBody, const WizardButtons& oButtons);
/// Returns the layout of a group of pictures, all in the same place.
forms::Layout StackOf(const PictureGroup& oPictures);
/// Returns the layout of a sample legend, whose two pictures are in the same place.
forms::Layout StackOf(const LegendPictures& oLegend);
/// Returns the layout of the axis boxes, aligned with a label before each box.
///@{
forms::Layout GridOf(const AxisBoxes& oAxes);
forms::Layout GridOf(const NumberFormatBox& oBox);
forms::Layout GridOf(const NumberFormatBox& oBox, const AxisBoxes& oAxes);
///@}
/// Returns the layout of the comment's frame with its box.
forms::Layout Framed(const CommentBox& oComment);

}  // namespace plotsmith
