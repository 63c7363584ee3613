#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// A new object PlotsmithTest.Boxes.
IDispatch* NewBoxes();

}  // namespace plotsmith::test
