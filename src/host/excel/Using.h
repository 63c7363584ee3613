#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/Ref.h"
#include "runtime/Variant.h"

/// The port to the spreadsheet program: abstract classes with the names of Excel's object model, and with the
/// members that the system uses. A getter has the name of the property, and a setter has "Set" before the
/// name. Objects are references, and a null reference is Nothing. Rows, columns and indices count from 1.
/// Distances are in points. Colours are Excel's numbers (red + 256 * green + 65536 * blue) or indices into
/// the workbook's palette. A host reports an error only as a RuntimeError with Excel's number and
/// description.
namespace plotsmith::excel {

using runtime::Ref;
using runtime::Variant;

}  // namespace plotsmith::excel
