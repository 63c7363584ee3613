#pragma once

#include "host/excel/Names.h"

namespace plotsmith::xlsx {

class Workbook;

/// The defined names of a workbook for the port, as they are at the time of this call.
excel::Ref<excel::Names> MakeNames(Workbook& book);

}  // namespace plotsmith::xlsx
