#include "cli/check/BubbleLabels.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <vector>

#include "cli/check/ColumnCells.h"
#include "cli/check/Words.h"
#include "common/CommonFunctions.h"
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
    ", and then switch the chart's own legend on in a spreadsheet program; the next refresh draws it.";

/// A bubble of a block: its name and its colour label.
struct Bubble {
  std::string name, label;
};

/// The bubbles of one chart on the data sheet; the first row of a block is its head.
std::vector<Bubble> BubblesOf(xlsx::Workbook& book, const std::string& id) {
  std::vector<Bubble> bubbles;
  const auto sheet = book.FindWorksheet(kDataSheet);
  if (!sheet) return bubbles;
  std::string scratch;
  bool isHead = true;
  for (std::int32_t row = 1; row != 0; row = sheet->NextRowAt(row, data_column::kId)) {
    if (GetCellText(*sheet, row, data_column::kId, scratch) != id) continue;
    if (isHead) {
      isHead = false;
      continue;
    }
    Bubble bubble;
    bubble.name = GetCellText(*sheet, row, data_column::kName, scratch);
    bubble.label = runtime::Trim(GetCellText(*sheet, row, data_column::kFirstSeries, scratch));
    bubbles.push_back(std::move(bubble));
  }
  return bubbles;
}

/// Where the table has the first column that a group of the definition names; 0 if it has none.
std::int32_t FirstColumnNumber(const IXMLDOMElement& chart, const IXMLDOMElement& table, const char* query) {
  const auto named = chart.selectSingleNode(query);
  const auto column = FindColumn(table.childElements(), GetAttributeText(named, "name"));
  return column ? GetAttributeLong(column, "worksheet-column-number") : 0;
}

/// The cell that gives a bubble its label: that of the last row with its name.
std::string LabelPlace(xlsx::Workbook& book, const IXMLDOMElement& chart, const IXMLDOMElement& table,
                       const Bubble& bubble) {
  const TableArea area(table);
  const std::int32_t names = FirstColumnNumber(chart, table, "categories/column");
  const std::int32_t labels = FirstColumnNumber(chart, table, "series/column");
  const auto sheet = book.FindWorksheet(area.sheet);
  std::int32_t found = area.firstRow;
  std::string scratch;
  for (std::int32_t row = area.firstRow; sheet && names != 0 && row <= area.lastRow; ++row) {
    if (runtime::EqualsIgnoreCase(GetCellText(*sheet, row, names, scratch), bubble.name)) found = row;
  }
  return labels == 0 ? "" : CellText(area.sheet, found, labels);
}

/// Whether the legend takes the label apart, and finds no colour for a piece.
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
  const auto series = chart.selectSingleNode("series/column");
  if (!series || GetAttributeText(chart.selectSingleNode("series"), "headings-in") == "none") return {};
  const std::vector<Bubble> bubbles = BubblesOf(book, GetAttributeText(chart, "id"));
  for (const Bubble& bubble : bubbles) {
    const bool isBlank = bubble.label.empty();
    if (!isBlank && !FallsApart(bubble.label, bubbles)) continue;
    const std::string start = "The column " + Quoted(GetAttributeText(series, "name")) + " has ";
    return {{LabelPlace(book, chart, table, bubble), FindingKind::kCells,
             start +
                 (isBlank ? "no label here for the bubble " + Quoted(bubble.name) +
                                ", so that it isn't shown and the chart has no drawn legend; fill the cell in"
                          : "a label here with the character '|', so that the chart has no drawn legend; "
                            "take the character out") +
                 kHowToShowAgain}};
  }
  return {};
}

}  // namespace plotsmith::cli
