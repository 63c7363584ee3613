#pragma once

#include "host/excel/Window.h"

namespace plotsmith::xlsx {

class Workbook;

/// The first window of a workbook, for the port.
excel::Ref<excel::Window> MakeWindow(Workbook& book);

}  // namespace plotsmith::xlsx
