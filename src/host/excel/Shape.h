#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class FillFormat;
class LineFormat;
class TextFrame;
class TextFrame2;

/// What is drawn on a sheet: a chart, a picture, a text box. Distances are points from the sheet's corner.
class Shape {
 public:
  virtual ~Shape() = default;

  virtual std::int32_t Type() = 0;
  virtual std::string Name() = 0;
  virtual std::string AlternativeText() = 0;
  virtual void SetAlternativeText(std::string_view text) = 0;
  virtual double Left() = 0;
  virtual double Top() = 0;
  virtual double Width() = 0;
  virtual double Height() = 0;
  virtual Ref<excel::TextFrame> TextFrame() = 0;
  virtual void Delete() = 0;
  virtual void SetName(std::string_view name) { Pending(); }
  virtual void SetLeft(double points) { Pending(); }
  virtual void SetTop(double points) { Pending(); }
  virtual void SetWidth(double points) { Pending(); }
  virtual void SetHeight(double points) { Pending(); }
  virtual Ref<excel::TextFrame2> TextFrame2() { Pending(); }
  virtual Ref<FillFormat> Fill() { Pending(); }
  virtual Ref<LineFormat> Line() { Pending(); }
  virtual void SetLockAspectRatio(bool value) { Pending(); }
  /// MsoAutoShapeType.
  virtual void SetAutoShapeType(std::int32_t type) { Pending(); }
};

}  // namespace plotsmith::excel
