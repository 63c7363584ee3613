#pragma once

#include <optional>
#include <pugixml.hpp>
#include <vector>

#include "render/Canvas.h"
#include "render/model/ChartModel.h"
#include "render/model/StyleReader.h"
#include "render/shapes/Placement.h"

namespace plotsmith::render {

/// A paragraph of a shape's text.
struct ShapeParagraph {
  RichText text;  ///< The text, with a paragraph for each line that ends with a line break.
  TextAlign align = TextAlign::kStart;  ///< The horizontal alignment of the lines.
};

/// The text of a shape (txBody).
struct ShapeText {
  /// The paragraphs from top to bottom.
  std::vector<ShapeParagraph> paragraphs;
  /// The distances between the frame and the text, in points.
  double left = 7.2, top = 3.6, right = 7.2, bottom = 3.6;
  /// The vertical alignment in the frame.
  ///@{
  enum class Anchor { kTop, kMiddle, kBottom } anchor = Anchor::kTop;
  ///@}
  /// Whether long lines are broken.
  bool wraps = true;
  /// The rotation relative to the shape, in degrees clockwise.
  double rotation = 0;

  /// Returns true if no paragraph has a text.
  bool IsEmpty() const;
};

/// Reads the text of a shape (sp). Runs without a colour get the colour `automatic`.
ShapeText ReadShapeText(const Palette& palette, pugi::xml_node object, const Color& automatic);
/// Draws a text in the frame of its shape.
void DrawShapeText(Canvas& canvas, Tag tag, const ShapeText& text, const Rect& frame,
                   const Placement& placement);

}  // namespace plotsmith::render
