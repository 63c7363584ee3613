#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "host/excel/Font.h"

namespace plotsmith::xlsx {

class DrawnShape;

/// The font of a piece of a shape's text for the port. `start` and `length` count UTF-16 units from 0. Beyond
/// the end of the text, setting the font has no effect.
excel::Ref<excel::Font> MakeShapeFont(std::shared_ptr<DrawnShape> shape, std::size_t start,
                                      std::size_t length, std::string journalPath);

}  // namespace plotsmith::xlsx
