#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace plotsmith::test {

/// A cell of a workbook: nothing, a number, a text, or the raw XML of the cell's element after `<c r="A1"`.
struct RawCell {
  std::string xml;
};
using PlainCell = std::variant<std::monostate, double, std::string, RawCell>;
using PlainRow = std::vector<PlainCell>;

/// The frame of a chart on a sheet, as another program leaves it for Plotsmith.
struct PlainFrame {
  std::string alternativeText;
  std::string chartXml;  ///< The chart part. If empty, the chart is empty and has no fill.
  int column = 0, row = 0, width = 8, height = 18;  ///< In cells, from 0.
};

struct PlainSheet {
  std::string name;
  std::vector<PlainRow> rows;
  int top = 1, left = 1;  ///< The position of the first cell.
  std::string state;      ///< "", "hidden" or "veryHidden"
  std::vector<PlainFrame> frames;
  std::string beforeData, afterData;  ///< Raw XML before and after sheetData.
  std::string extraAnchors;           ///< Raw XML in the drawing.
};

/// A workbook as another program writes it. The parts are written by hand, and only the zip file is made by
/// the product.
struct PlainBook {
  std::vector<PlainSheet> sheets;
  std::vector<std::pair<std::string, std::string>> names;  ///< Defined names and their references.
  bool sharedStrings = false;
  std::string workbookExtra;  ///< Raw XML before `sheets`.
  std::string styles;         ///< The styles part, if not empty.
  std::vector<std::pair<std::string, std::string>>
      extraParts;  ///< Names such as "xl/media/x.png", and their bytes.

  PlainSheet& Sheet(const std::string& name);
  /// Adds the very hidden sheet of definitions, one text per row.
  void AddDefinitions(const std::vector<std::string>& definitions);
  void Write(const std::string& path) const;
};

/// Returns the chart part of an empty frame.
std::string EmptyFrameChart();

}  // namespace plotsmith::test
