#include "common/Worksheets.h"

#include <memory>

#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;

bool SheetExists(std::string_view sName) {
  const auto oSheets = oWorkbook->Sheets();
  const std::string sWanted = runtime::UCase(sName);
  for (std::int32_t i = 1; i <= oSheets->Count(); ++i) {
    if (runtime::UCase(oSheets->Item(i)->Name()) == sWanted) return true;
  }
  return false;
}

bool SheetIsVisible(std::string_view sName) {
  return ValueOr(false,
                 [&] { return oWorkbook->Worksheets()->Item(sName)->Visible() != excel::xlSheetHidden; });
}

bool CreateSheet(const std::string& sName, std::int32_t lPosition, std::int32_t lVisible) {
  bool bCreated = false;
  Ref<excel::Worksheet> oSheet;
  HandleErrors(
      [&] {
        const auto oActiveSheet = oWorkbook->ActiveSheet();
        const auto oSheets = oWorkbook->Sheets();
        switch (lPosition) {
          case 0:
            oSheet = oSheets->Add(oSheets->Item(1), nullptr);
            break;
          case 1:
            oSheet = oSheets->Add(nullptr, oSheets->Item(oSheets->Count()));
            break;
          default:
            oSheet = oSheets->Add(nullptr, nullptr);
        }
        oSheet->SetName(sName);
        oSheet->SetVisible(lVisible);
        bCreated = true;
        if (lVisible != excel::xlSheetVisible) oActiveSheet->Activate();
      },
      [&](const runtime::RuntimeError&) {
        bCreated = false;
        const auto deleteSheet = [&] {
          if (oSheet) oSheet->Delete();
        };
        IgnoreErrors([] { oApplication->SetDisplayAlerts(false); }, deleteSheet,
                     [] { oApplication->SetDisplayAlerts(true); });
      });
  return bCreated;
}

bool DeleteSheetRow(const Ref<excel::Worksheet>& oSheet, std::int32_t lRow) {
  return ValueOr(false, [&] {
    oSheet->Rows(lRow)->Delete(excel::xlShiftUp);
    return true;
  });
}

void InsertSheetRow(const Ref<excel::Worksheet>& oSheet, std::int32_t lRow) {
  ReportErrors("CommonFunctions.InsertSheetRow", [&] { oSheet->Rows(lRow)->Insert(); });
}

Ref<excel::Worksheet> SheetWithCells(std::string_view sName) {
  auto oSheet = std::dynamic_pointer_cast<excel::Worksheet>(oWorkbook->Sheets()->Item(sName).shared());
  if (!oSheet) throw runtime::RuntimeError(runtime::error::kTypeMismatch);
  return oSheet;
}

}  // namespace plotsmith
