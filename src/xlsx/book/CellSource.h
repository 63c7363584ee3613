#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/CellValue.h"

namespace plotsmith::xlsx {

/// The cells of a sheet, as far as charts read them. Rows and columns count from 1; a cell outside of the
/// sheet is error 1004.
class CellSource {
 public:
  virtual ~CellSource() = default;

  /// The name on the sheet's tab.
  virtual const std::string& SheetName() const = 0;
  /// A cell as the file stores it. Unlike for the port, the serial number of a date counts in the workbook's
  /// own date system. A text in it is valid until the sheet is next written.
  virtual excel::CellValue Stored(std::int32_t row, std::int32_t column) = 0;
  /// The displayed text of a cell. The view is into the sheet or into `scratch`.
  virtual std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) = 0;
  /// The code of a cell's number format.
  virtual std::string NumberFormatAt(std::int32_t row, std::int32_t column) = 0;
};

}  // namespace plotsmith::xlsx
