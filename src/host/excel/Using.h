#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/Ref.h"
#include "runtime/Variant.h"

/// The port to the spreadsheet: abstract classes by the names of Excel's object model, with the members that
/// the system uses. A getter bears the property's name, a setter the name behind "Set". Objects are
/// references in which null is Nothing; rows, columns and positions in collections count from 1; distances
/// are points; colours are Excel's long values (red + 256 * green + 65536 * blue) or indices into the
/// workbook's palette. A host fails with a RuntimeError that bears Excel's number and wording, and with
/// nothing else.
namespace plotsmith::excel {

using runtime::Ref;
using runtime::Variant;

}  // namespace plotsmith::excel
