#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/CellValue.h"

namespace plotsmith::xlsx {

/// The cells of a sheet, for charts. Rows and columns count from 1; a cell outside the sheet raises error
/// 1004.
class CellSource {
 public:
  virtual ~CellSource() = default;

  /// The name on the sheet's tab.
  virtual const std::string& SheetName() const = 0;
  /// A cell as the file stores it. A date is a serial number of the workbook's own date system, unlike in the
  /// port. A text is valid until the sheet is next written.
  virtual excel::CellValue Stored(std::int32_t row, std::int32_t column) = 0;
  /// The displayed text of a cell. The view refers to the sheet or to `scratch`.
  virtual std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) = 0;
  /// The code of a cell's number format.
  virtual std::string NumberFormatAt(std::int32_t row, std::int32_t column) = 0;
};

}  // namespace plotsmith::xlsx
