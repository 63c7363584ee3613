#pragma once

#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "host/excel/Excel.h"

namespace plotsmith::xlsx {

class Chart;
class Drawing;

/// Where a shape lies, in points from the sheet's corner.
struct Frame {
  double left = 0, top = 0, width = 0, height = 0;
};

/// One shape of a drawing: a view over its anchor.
class Shape final : public excel::Shape, public std::enable_shared_from_this<Shape> {
 public:
  Shape(Drawing& drawing, pugi::xml_node anchor, pugi::xml_node object);

  std::int32_t Type() override { return type_; }
  std::string Name() override;
  std::string AlternativeText() override;
  void SetAlternativeText(std::string_view text) override;
  double Left() override { return PlacedFrame().left; }
  double Top() override { return PlacedFrame().top; }
  double Width() override { return PlacedFrame().width; }
  double Height() override { return PlacedFrame().height; }
  excel::Ref<excel::TextFrame> TextFrame() override;
  void Delete() override;

  pugi::xml_node Anchor() const { return anchor_; }
  Drawing& Owner() const { return drawing_; }
  Frame PlacedFrame() const;
  /// The part of the chart that the shape frames; empty if it frames none, or one that isn't there.
  std::string ChartPartName() const;
  excel::Ref<excel::Chart> Chart();

  /// The whole text, paragraphs joined by line feeds.
  std::string Text() const;
  void SetText(std::string_view text);
  std::string JournalPath() const;

 private:
  pugi::xml_node Properties() const;  ///< cNvPr
  pugi::xml_node ChartLink() const;
  std::int32_t ReadType() const;

  Drawing& drawing_;
  pugi::xml_node anchor_;
  pugi::xml_node object_;
  std::int32_t type_;  ///< read once: whoever seeks a chart asks all shapes
};

/// The shapes of a sheet, for the port; `drawing` may be null.
excel::Ref<excel::Shapes> MakeShapes(class Worksheet& sheet);
excel::Ref<excel::ChartObjects> MakeChartObjects(class Worksheet& sheet);

}  // namespace plotsmith::xlsx
