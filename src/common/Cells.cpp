#include "common/Cells.h"

#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "host/excel/CellValue.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Variant;

Variant GetCellValue(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn, std::int32_t lKind) {
  switch (lKind) {
    case cell::kText: {
      std::string sScratch;
      return GetCellText(oSheet, lRow, lColumn, sScratch);
    }
    case cell::kDouble:
      return GetCellDouble(oSheet, lRow, lColumn);
    case cell::kString:
      return ValueOr(std::string(),
                     [&] { return runtime::CStr(oSheet.CellValueAt(lRow, lColumn).ToVariant()); });
    default:
      return ValueOr(runtime::kNull, [&] {
        oSheet.CellValueAt(lRow, lColumn);
        return Variant();
      });
  }
}

std::string_view GetCellText(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                             std::string& sScratch) {
  return ValueOr(std::string_view(), [&] { return oSheet.CellTextAt(lRow, lColumn, sScratch); });
}

double GetCellDouble(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn) {
  using Kind = excel::CellValue::Kind;
  return ValueOr(0.0, [&] {
    const excel::CellValue vValue = oSheet.CellValueAt(lRow, lColumn);
    if (vValue.kind == Kind::kNumber || vValue.kind == Kind::kDate) return vValue.number;
    if (vValue.kind == Kind::kEmpty || vValue.kind == Kind::kError) return 0.0;
    if (vValue.kind == Kind::kText) return runtime::ParseNumber(vValue.text).value_or(0.0);
    return runtime::CDbl(vValue.ToVariant());
  });
}

}  // namespace plotsmith
