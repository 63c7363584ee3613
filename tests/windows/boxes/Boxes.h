#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Makes an object PlotsmithTest.Boxes.
IDispatch* NewBoxes();

}  // namespace plotsmith::test
