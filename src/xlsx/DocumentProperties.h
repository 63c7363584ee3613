#pragma once

#include <string_view>

#include "host/excel/DocumentProperty.h"

namespace plotsmith::xlsx {

class Workbook;

/// A property of the workbook by Excel's name for it; error 5 for one that this host doesn't have.
excel::Ref<excel::DocumentProperty> MakeDocumentProperty(Workbook& book, std::string_view name);

}  // namespace plotsmith::xlsx
