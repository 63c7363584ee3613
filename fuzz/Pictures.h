#pragma once

#include <string>

#include "xlsx/Workbook.h"

namespace plotsmith::fuzz {

/// Draws the chart of a part and makes its pictures. Throws the exceptions of reading the chart.
void DrawPictures(xlsx::Workbook& book, const std::string& part);

}  // namespace plotsmith::fuzz
