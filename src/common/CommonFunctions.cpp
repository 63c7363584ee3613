#include "common/CommonFunctions.h"

#include <algorithm>
#include <cmath>

#include "common/App.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"

namespace plotsmith {

using runtime::Ref;
using runtime::Variant;

namespace {

std::int32_t lLastYieldTime = 0;  // whole seconds since midnight

}  // namespace

bool SafeBool(const Variant& vValue) {
  return ValueOr(false, [&] { return runtime::CBool(vValue); });
}

std::string SafeString(const Variant& vValue) {
  return ValueOr(std::string(), [&] { return runtime::CStr(vValue); });
}

bool ArrayContains(std::string_view sValue, std::span<const std::string_view> aValues) {
  return std::find(aValues.begin(), aValues.end(), sValue) != aValues.end();
}

std::string GetAttributeText(const dom::IXMLDOMElement& oElement, const char* sAttribute) {
  const Variant vText = oElement.getAttribute(sAttribute);
  return vText.IsNull() ? std::string() : runtime::CStr(vText);
}

std::string GetChildText(const dom::IXMLDOMElement& oElement, const char* sChild) {
  const auto oChild = oElement.selectSingleNode(sChild);
  const auto oText = oChild ? oChild.firstChild() : dom::IXMLDOMNode();
  return oText ? oText.nodeValue() : std::string();
}

std::int32_t GetAttributeLong(const dom::IXMLDOMElement& oElement, const char* sAttribute) {
  return runtime::CLng(GetAttributeText(oElement, sAttribute));
}

bool HasSetting(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::string_view sSetting) {
  const auto aAttributes = oChartElement.selectNodes((std::string(sGroup) + "/attribute").c_str());
  return std::any_of(aAttributes.begin(), aAttributes.end(), [&](const dom::IXMLDOMElement& oAttribute) {
    return GetAttributeText(oAttribute, "setting") == sSetting;
  });
}

void RemoveChild(dom::IXMLDOMElement& oElement, const char* sChild) {
  if (auto oChild = oElement.selectSingleNode(sChild)) oElement.removeChild(oChild);
}

// The parser neither validates nor resolves what lies outside the text, keeps white space, and is
// synchronous: there is nothing to set.
dom::IXMLDOMDocument2 NewXMLDocument() { return dom::IXMLDOMDocument2::Create(); }

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
        if (!oSheet) return;
        IgnoreErrors([] { oApplication->SetDisplayAlerts(false); }, [&] { oSheet->Delete(); },
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

void YieldToHost() {
  const double dNow = App.Desktop->Timer();
  // After midnight the difference is negative until the clock has passed the stored time: no yield so long.
  if (dNow - lLastYieldTime < 2.0) return;
  lLastYieldTime = static_cast<std::int32_t>(std::nearbyint(dNow));
  App.Forms->DoEvents();
}

void ResetYield() { lLastYieldTime = 0; }

std::string FormatSampleNumber(const std::string& sNumberFormat) {
  return ValueOr(std::string(kInvalidFormat), [&] {
    // beside the mark of the sheet, where nobody looks
    const auto oCell = oWorkbook->Worksheets()->Item(kDefinitionsSheet)->Cells(1, 2);
    oCell->SetValue(12345.6789);
    oCell->SetNumberFormat(sNumberFormat);
    std::string sText = oCell->Text();
    oCell->Clear();
    oCell->SetNumberFormat("General");
    return sText;
  });
}

double HostVersion(const Ref<excel::Application>& oHost) {
  return runtime::Val(std::string_view(oHost->Version()));
}

}  // namespace plotsmith
