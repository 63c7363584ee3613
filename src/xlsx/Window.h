#pragma once

#include "host/excel/Window.h"

namespace plotsmith::xlsx {

class Workbook;

/// The window of a workbook, for the port: the views of the sheets in the workbook's first window.
excel::Ref<excel::Window> MakeWindow(Workbook& book);

}  // namespace plotsmith::xlsx
