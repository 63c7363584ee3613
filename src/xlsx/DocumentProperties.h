#pragma once

#include <string_view>

#include "host/excel/DocumentProperty.h"

namespace plotsmith::xlsx {

class Workbook;

/// The document property with Excel's name `name`; raises error 5 if this host doesn't have it.
excel::Ref<excel::DocumentProperty> MakeDocumentProperty(Workbook& book, std::string_view name);

}  // namespace plotsmith::xlsx
