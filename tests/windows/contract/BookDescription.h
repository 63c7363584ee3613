#pragma once

#include <string>

#include "host/excel/Application.h"

namespace plotsmith::contract {

/// All that the port tells of the open workbook, a line for each member and object that was asked: sheets,
/// names, cells with values and texts, shapes, and charts with their parts. Failures are lines as well.
std::string Describe(excel::Application& application);

}  // namespace plotsmith::contract
