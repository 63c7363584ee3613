#include "cli/check/BubbleLabels.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <unordered_map>
#include <utility>
#include <vector>

#include "cli/check/ColumnCells.h"
#include "cli/check/Words.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::cli {
namespace {

using dom::IXMLDOMElement;

constexpr const char* kBubbleType = "bubble";
constexpr char kSeparator = '|';
constexpr const char* kHowToShowAgain =
    ", and then switch on the chart's own legend in a spreadsheet program; the next refresh draws it.";

/// A bubble: its name, and the colour label of the last row with that name.
struct Bubble {
  std::string name, label;
  std::int32_t row = 0;
};

/// Returns the number of the first column that a group of the definition names, or 0 if the table doesn't
/// have it.
std::int32_t FirstColumnNumber(const IXMLDOMElement& chart, const IXMLDOMElement& table, const char* query) {
  const auto named = chart.selectSingleNode(query);
  if (!named) return 0;
  const auto column = FindColumn(table.childElements(), GetAttributeText(named, "name"));
  return column ? GetAttributeLong(column, "worksheet-column-number") : 0;
}

/// Returns the bubbles of a table in the order of the first occurrence of their names.
std::vector<Bubble> BubblesOf(excel::Worksheet& sheet, const TableArea& area, std::int32_t names,
                              std::int32_t labels) {
  constexpr std::size_t kMostBubbles = 254;
  std::vector<Bubble> bubbles;
  std::unordered_map<std::string, std::size_t> byName;
  std::string scratch;
  for (std::int32_t row = area.firstRow; row <= area.lastRow; ++row) {
    std::string name(GetCellText(sheet, row, names, scratch));
    const auto [found, isNew] = byName.try_emplace(runtime::UCase(name), bubbles.size());
    if (isNew && bubbles.size() < kMostBubbles) bubbles.push_back({std::move(name), "", row});
    if (found->second >= bubbles.size()) continue;  // The chart has too many bubbles.
    Bubble& bubble = bubbles[found->second];
    bubble.label = runtime::Trim(GetCellText(sheet, row, labels, scratch));
    bubble.row = row;
  }
  return bubbles;
}

/// Returns true if the legend splits the label and finds no colour for a piece.
bool FallsApart(const std::string& label, const std::vector<Bubble>& bubbles) {
  if (label.find(kSeparator) == std::string::npos) return false;
  std::istringstream pieces(label);
  for (std::string piece; std::getline(pieces, piece, kSeparator);) {
    const auto isLabel = [&](const Bubble& bubble) { return bubble.label == piece; };
    if (std::none_of(bubbles.begin(), bubbles.end(), isLabel)) return true;
  }
  return false;
}

}  // namespace

Findings CheckBubbleLabels(xlsx::Workbook& book, const IXMLDOMElement& chart, const IXMLDOMElement& table) {
  if (GetAttributeText(chart, "type") != kBubbleType || HostVersion(oApplication) <= kLastClassicVersion)
    return {};
  const auto series = chart.selectSingleNode("series");
  if (!series || GetAttributeText(series, "headings-in") == "none") return {};
  const TableArea area(table);
  const auto sheet = book.FindWorksheet(area.sheet);
  const std::int32_t names = FirstColumnNumber(chart, table, "categories/column");
  const std::int32_t labels = FirstColumnNumber(chart, table, "series/column");
  if (!sheet || names == 0 || labels == 0) return {};
  const std::vector<Bubble> bubbles = BubblesOf(*sheet, area, names, labels);
  for (const Bubble& bubble : bubbles) {
    const bool isBlank = bubble.label.empty();
    if (!isBlank && !FallsApart(bubble.label, bubbles)) continue;
    const std::string column = GetAttributeText(chart.selectSingleNode("series/column"), "name");
    return {
        {CellText(area.sheet, bubble.row, labels), FindingKind::kCells,
         "The column " + Quoted(column) + " has " +
             (isBlank ? "no label here for the bubble " + Quoted(bubble.name) +
                            ", so the bubble isn't shown and the chart has no drawn legend; fill in the cell"
                      : "a label here with the character '|', so the chart has no drawn legend; remove the "
                        "character") +
             kHowToShowAgain}};
  }
  return {};
}

}  // namespace plotsmith::cli
