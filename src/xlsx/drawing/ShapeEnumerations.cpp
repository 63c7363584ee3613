#include "xlsx/drawing/ShapeEnumerations.h"

namespace plotsmith::xlsx {
namespace {

constexpr EnumerationEntry kAutoShapeEntries[] = {
    {1, "msoShapeRectangle", "rect"},
    {2, "msoShapeParallelogram", "parallelogram"},
    {3, "msoShapeTrapezoid", "trapezoid"},
    {4, "msoShapeDiamond", "diamond"},
    {5, "msoShapeRoundedRectangle", "roundRect"},
    {6, "msoShapeOctagon", "octagon"},
    {7, "msoShapeIsoscelesTriangle", "triangle"},
    {8, "msoShapeRightTriangle", "rtTriangle"},
    {9, "msoShapeOval", "ellipse"},
    {10, "msoShapeHexagon", "hexagon"},
    {11, "msoShapeCross", "plus"},
    {12, "msoShapeRegularPentagon", "pentagon"},
    {13, "msoShapeCan", "can"},
    {14, "msoShapeCube", "cube"},
    {15, "msoShapeBevel", "bevel"},
    {16, "msoShapeFoldedCorner", "foldedCorner"},
    {17, "msoShapeSmileyFace", "smileyFace"},
    {18, "msoShapeDonut", "donut"},
    {19, "msoShapeNoSymbol", "noSmoking"},
    {20, "msoShapeBlockArc", "blockArc"},
    {21, "msoShapeHeart", "heart"},
    {22, "msoShapeLightningBolt", "lightningBolt"},
    {23, "msoShapeSun", "sun"},
    {24, "msoShapeMoon", "moon"},
    {25, "msoShapeArc", "arc"},
    {33, "msoShapeRightArrow", "rightArrow"},
    {34, "msoShapeLeftArrow", "leftArrow"},
    {35, "msoShapeUpArrow", "upArrow"},
    {36, "msoShapeDownArrow", "downArrow"},
    {52, "msoShapeChevron", "chevron"},
    {91, "msoShape4pointStar", "star4"},
    {92, "msoShape5pointStar", "star5"},
};

constexpr EnumerationEntry kAutoSizeEntries[] = {
    {0, "msoAutoSizeNone", "noAutofit"},
    {1, "msoAutoSizeShapeToFitText", "spAutoFit"},
    {2, "msoAutoSizeTextToFitShape", "normAutofit"},
};

constexpr EnumerationEntry kHorizontalAlignmentEntries[] = {
    {-4131, "xlHAlignLeft", "l"},       {-4108, "xlHAlignCenter", "ctr"},       {-4152, "xlHAlignRight", "r"},
    {-4130, "xlHAlignJustify", "just"}, {-4117, "xlHAlignDistributed", "dist"},
};

constexpr EnumerationEntry kVerticalAlignmentEntries[] = {
    {-4160, "xlVAlignTop", "t"},
    {-4108, "xlVAlignCenter", "ctr"},
    {-4107, "xlVAlignBottom", "b"},
    {-4130, "xlVAlignJustify", "just"},
    {-4117, "xlVAlignDistributed", "dist"},
};

}  // namespace

const Enumeration kAutoShapes = {kAutoShapeEntries, ""};
const Enumeration kAutoSizes = {kAutoSizeEntries, "noAutofit"};
const Enumeration kHorizontalAlignments = {kHorizontalAlignmentEntries, ""};
const Enumeration kVerticalAlignments = {kVerticalAlignmentEntries, ""};

}  // namespace plotsmith::xlsx
