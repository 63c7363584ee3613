#pragma once

#include <string>

#include "host/excel/Application.h"

namespace plotsmith::contract {

/// Describes the open workbook as the port shows it, with a line for each member and object: sheets, names,
/// cells with values and texts, shapes, and charts with their parts. Errors are lines too.
std::string Describe(excel::Application& application);

}  // namespace plotsmith::contract
