#include "xlsx/Printing.h"

#include <algorithm>

#include "runtime/Strings.h"
#include "xlsx/Sheet.h"
#include "xlsx/Workbook.h"
#include "xlsx/base/Errors.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::string_view kPrintArea = "_xlnm.Print_Area";
/// The maximum length of a formula allows no more ranges than this.
constexpr std::size_t kMostAreas = 1000;

/// Returns the ranges in a list such as "Sheet1!$A$1:$B$9,Sheet1!$D:$E"; other texts are skipped.
std::vector<CellRange> RangesOf(std::string_view list) {
  std::vector<CellRange> ranges;
  bool quoted = false;
  std::size_t begin = 0;
  for (std::size_t at = 0; at <= list.size() && ranges.size() < kMostAreas; ++at) {
    if (at < list.size() && list[at] == '\'') quoted = !quoted;
    if (at < list.size() && (quoted || list[at] != ',')) continue;
    if (const auto range = ParseSheetRange(runtime::Trim(list.substr(begin, at - begin))))
      ranges.push_back(range->range);
    begin = at + 1;
  }
  return ranges;
}

}  // namespace

PageSetup PageSetupOf(Workbook& book, const SheetEntry& sheet) {
  return book.Guarded(
      [&] { return InPart(sheet.part, [&] { return ReadPageSetup(*book.Package().Stream(sheet.part)); }); });
}

std::vector<CellRange> PrintAreaOf(const Workbook& book, const SheetEntry& sheet) {
  const auto& sheets = book.Tabs().All();
  const auto place = static_cast<std::size_t>(
      std::find_if(sheets.begin(), sheets.end(), [&](const auto& entry) { return entry.get() == &sheet; }) -
      sheets.begin());
  for (const NameEntry& name : book.DefinedNames().All()) {
    if (name.sheet == place && runtime::EqualsIgnoreCase(name.name, kPrintArea))
      return RangesOf(name.definition);
  }
  return {};
}

}  // namespace plotsmith::xlsx
