#pragma once

#include <memory>

#include "host/excel/TextFrame.h"
#include "host/excel/TextFrame2.h"

namespace plotsmith::xlsx {

class DrawnShape;

/// The text of a shape for the port. A shape that adapts its size to the text is resized at each change.
excel::Ref<excel::TextFrame> MakeTextFrame(std::shared_ptr<DrawnShape> shape);
/// The text frame of a shape in Excel's newer object model.
excel::Ref<excel::TextFrame2> MakeTextFrame2(std::shared_ptr<DrawnShape> shape);

}  // namespace plotsmith::xlsx
