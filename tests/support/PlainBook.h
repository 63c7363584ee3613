#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace plotsmith::test {

/// A cell of a book in the making: nothing, a number, a text, or the raw XML of the cell's element behind `<c
/// r="A1"`.
struct RawCell {
  std::string xml;
};
using PlainCell = std::variant<std::monostate, double, std::string, RawCell>;
using PlainRow = std::vector<PlainCell>;

/// The frame of a chart on a sheet, as another program would leave it for Plotsmith.
struct PlainFrame {
  std::string alternativeText;
  std::string chartXml;  ///< the chart part; empty: an empty chart without a filling
  int column = 0, row = 0, width = 8, height = 18;  ///< in cells, from 0
};

struct PlainSheet {
  std::string name;
  std::vector<PlainRow> rows;
  int top = 1, left = 1;  ///< where the first cell stands
  std::string state;      ///< "", "hidden" or "veryHidden"
  std::vector<PlainFrame> frames;
  std::string beforeData, afterData;  ///< raw XML around sheetData
  std::string extraAnchors;           ///< raw XML in the drawing
};

/// A workbook as some other program writes it: parts written by hand. Only the zip file around them is of the
/// product's making.
struct PlainBook {
  std::vector<PlainSheet> sheets;
  std::vector<std::pair<std::string, std::string>> names;  ///< defined names and what they refer to
  bool sharedStrings = false;
  std::string workbookExtra;                                    ///< raw XML in front of `sheets`
  std::string styles;                                           ///< the styles part; empty: none
  std::vector<std::pair<std::string, std::string>> extraParts;  ///< "xl/media/x.png" and its bytes

  PlainSheet& Sheet(const std::string& name);
  /// Adds the very hidden sheet of definitions, one text a row.
  void AddDefinitions(const std::vector<std::string>& definitions);
  void Write(const std::string& path) const;
};

/// The chart part of a frame that waits for its chart.
std::string EmptyFrameChart();

}  // namespace plotsmith::test
