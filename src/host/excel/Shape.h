#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class TextFrame;

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
};

}  // namespace plotsmith::excel
