#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "common/ErrorBlocks.h"
#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Collection.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

namespace plotsmith {

/// The value as a Boolean, False where it can't be converted.
bool SafeBool(const runtime::Variant& vValue);
/// The value as a string, "" where it can't be converted.
std::string SafeString(const runtime::Variant& vValue);
/// Compares case-sensitively.
bool ArrayContains(std::string_view sValue, std::span<const std::string_view> aValues);

/// Only error 5 of the read means that the key isn't there.
template <class T>
bool CollectionHasKey(std::string_view sKey, const runtime::Ref<runtime::Collection<T>>& oCollection) {
  bool bHas = true;
  HandleErrors(
      [&] { oCollection->Item(sKey); },
      [&](const runtime::RuntimeError& oErr) { bHas = oErr.Number() != runtime::error::kInvalidCall; });
  return bHas;
}

/// The attribute's text; an absent one can't be told from an empty one, and readers rely on that.
std::string GetAttributeText(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// The text that a child element begins with; "" where there is no such child, or none in it.
std::string GetChildText(const dom::IXMLDOMElement& oElement, const char* sChild);
/// The attribute as a whole number; error 13 if it isn't one.
std::int32_t GetAttributeLong(const dom::IXMLDOMElement& oElement, const char* sAttribute);
/// Whether an `attribute` of the group ("dynamic-attributes" or "static-attributes") has the setting.
bool HasSetting(const dom::IXMLDOMElement& oChartElement, const char* sGroup, std::string_view sSetting);
/// Takes the first child element of that name away, if there is one.
void RemoveChild(dom::IXMLDOMElement& oElement, const char* sChild);
dom::IXMLDOMDocument2 NewXMLDocument();

/// The sheets of `oWorkbook` by name, ignoring case.
bool SheetExists(std::string_view sName);
/// Very hidden counts as visible, a sheet that isn't there does not.
bool SheetIsVisible(std::string_view sName);
/// A new worksheet before the first sheet (`lPosition` 0), after the last (1) or where the host puts it. The
/// active sheet changes only for a visible one. False, with no sheet left behind, if the host refuses.
bool CreateSheet(const std::string& sName, std::int32_t lPosition, std::int32_t lVisible);
bool DeleteSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
void InsertSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
/// A sheet of `oWorkbook` that has cells; error 13 for one that has none.
runtime::Ref<excel::Worksheet> SheetWithCells(std::string_view sName);

/// Reads one cell; a failure is "" for a text and 0 for a number. `lKind` as in PSConstants.h.
runtime::Variant GetCellValue(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                              std::int32_t lKind);
/// The two kinds that the hot loops read, without a Variant. The view is into the sheet or into `sScratch`.
std::string_view GetCellText(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                             std::string& sScratch);
double GetCellDouble(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn);

/// Lets the host breathe, at most once in two seconds; for long loops.
void YieldToHost();
/// Puts back what YieldToHost remembers.
void ResetYield();

/// What FormatSampleNumber gives for a format that the host refuses.
inline constexpr const char* kInvalidFormat = "(invalid format)";
/// What 12345.6789 looks like in a number format, or kInvalidFormat.
std::string FormatSampleNumber(const std::string& sNumberFormat);

/// The host's version as a number.
double HostVersion(const runtime::Ref<excel::Application>& oHost);

}  // namespace plotsmith
