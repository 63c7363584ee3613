#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class FillFormat;
class LineFormat;
class TextFrame;
class TextFrame2;

/// What is drawn on a sheet or on a chart: a chart, a picture, a text box. Distances are points from the
/// sheet's or the chart's corner.
class Shape {
 public:
  virtual ~Shape() = default;

  /// MsoShapeType.
  virtual std::int32_t Type() = 0;
  virtual std::string Name() = 0;
  /// The text that is read to those who can't see the shape; it ties charts to their definitions.
  virtual std::string AlternativeText() = 0;
  virtual void SetAlternativeText(std::string_view text) = 0;
  /// Points from the corner of the sheet, or of the chart that the shape is drawn on.
  virtual double Left() = 0;
  virtual double Top() = 0;
  virtual double Width() = 0;
  virtual double Height() = 0;
  virtual Ref<excel::TextFrame> TextFrame() = 0;
  virtual void Delete() = 0;
  virtual void SetName(std::string_view name) = 0;
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  virtual void SetWidth(double points) = 0;
  virtual void SetHeight(double points) = 0;
  virtual Ref<excel::TextFrame2> TextFrame2() = 0;
  virtual Ref<FillFormat> Fill() = 0;
  virtual Ref<LineFormat> Line() = 0;
  virtual void SetLockAspectRatio(bool value) = 0;
  /// MsoAutoShapeType.
  virtual void SetAutoShapeType(std::int32_t type) = 0;
};

}  // namespace plotsmith::excel
