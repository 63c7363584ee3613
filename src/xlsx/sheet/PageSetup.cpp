#include "xlsx/sheet/PageSetup.h"

#include <algorithm>
#include <array>
#include <utility>

#include "xlsx/base/Limits.h"
#include "xlsx/package/Xml.h"
#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {
namespace {

constexpr double kPointsPerInch = 72, kPointsPerMillimeter = 72 / 25.4;
/// Excel's limits.
constexpr double kLeastScale = 0.1, kMostScale = 4, kMostMargin = 49 * kPointsPerInch;
constexpr long long kMostPages = 32767;
constexpr std::size_t kMostBreaks = 1026;

struct Paper {
  long long code;
  double width, height;  ///< points, in portrait orientation
};

constexpr Paper Inches(long long code, double width, double height) {
  return {code, width * kPointsPerInch, height * kPointsPerInch};
}
constexpr Paper Millimeters(long long code, double width, double height) {
  return {code, width * kPointsPerMillimeter, height * kPointsPerMillimeter};
}

/// The most common paper sizes by their number in `paperSize` (ECMA-376-1, 18.3.1.63).
constexpr std::array kPapers = {
    Inches(1, 8.5, 11),        Inches(3, 11, 17),         Inches(4, 17, 11),
    Inches(5, 8.5, 14),        Inches(6, 5.5, 8.5),       Inches(7, 7.25, 10.5),
    Millimeters(8, 297, 420),  Millimeters(9, 210, 297),  Millimeters(11, 148, 210),
    Millimeters(12, 250, 353), Millimeters(13, 176, 250), Millimeters(70, 105, 148)};

double NumberIn(std::string_view attributes, std::string_view name, double fallback) {
  return xml::ParseDouble(AttributeIn(attributes, name)).value_or(fallback);
}

int CountIn(std::string_view attributes, std::string_view name) {
  const auto count = xml::ParseInteger(AttributeIn(attributes, name)).value_or(1);
  return static_cast<int>(std::clamp(count, 0LL, kMostPages));
}

void ReadMargins(std::string_view attributes, PageSetup& setup) {
  const auto read = [&](const char* name, double& margin) {
    margin =
        std::clamp(NumberIn(attributes, name, margin / kPointsPerInch) * kPointsPerInch, 0.0, kMostMargin);
  };
  read("left", setup.left);
  read("right", setup.right);
  read("top", setup.top);
  read("bottom", setup.bottom);
}

void ReadPaper(std::string_view attributes, PageSetup& setup) {
  const auto code = xml::ParseInteger(AttributeIn(attributes, "paperSize")).value_or(1);
  const auto found =
      std::find_if(kPapers.begin(), kPapers.end(), [&](const Paper& paper) { return paper.code == code; });
  if (found != kPapers.end()) {
    setup.paperWidth = found->width;
    setup.paperHeight = found->height;
  }
  if (AttributeIn(attributes, "orientation") == "landscape") std::swap(setup.paperWidth, setup.paperHeight);
  const double scale = NumberIn(attributes, "scale", 100) / 100;
  setup.scale = scale > 0 ? std::clamp(scale, kLeastScale, kMostScale) : 1;
  setup.fitWidth = CountIn(attributes, "fitToWidth");
  setup.fitHeight = CountIn(attributes, "fitToHeight");
  setup.overThenDown = AttributeIn(attributes, "pageOrder") == "overThenDown";
}

void ReadPrintOptions(std::string_view attributes, PageSetup& setup) {
  setup.gridLines = BooleanIn(attributes, "gridLines");
  setup.headings = BooleanIn(attributes, "headings");
  setup.centersAcross = BooleanIn(attributes, "horizontalCentered");
  setup.centersDown = BooleanIn(attributes, "verticalCentered");
}

void AddBreak(std::string_view attributes, std::int32_t most, std::vector<std::int32_t>& breaks) {
  const auto line = xml::ParseInteger(AttributeIn(attributes, "id")).value_or(0);
  if (line > 0 && line < most && breaks.size() < kMostBreaks)
    breaks.push_back(static_cast<std::int32_t>(line));
}

void Sort(std::vector<std::int32_t>& breaks) {
  std::sort(breaks.begin(), breaks.end());
  breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());
}

}  // namespace

PageSetup ReadPageSetup(Archive::Stream& part) {
  PageSetup setup;
  XmlStream stream(part);
  std::vector<std::int32_t>* breaks = nullptr;
  std::int32_t most = 0;
  for (auto tag = stream.Next(); tag.kind != XmlStream::Kind::kEndOfInput; tag = stream.Next()) {
    if (tag.kind == XmlStream::Kind::kEnd) continue;
    if (tag.name == "sheetData" && tag.kind == XmlStream::Kind::kStart) {
      stream.SkipElement();
    } else if (tag.name == "customSheetViews" && tag.kind == XmlStream::Kind::kStart) {
      stream.SkipElement();  // page setups of other users' views
    } else if (tag.name == "pageSetUpPr") {
      setup.fits = BooleanIn(tag.attributes, "fitToPage");
    } else if (tag.name == "printOptions") {
      ReadPrintOptions(tag.attributes, setup);
    } else if (tag.name == "pageMargins") {
      ReadMargins(tag.attributes, setup);
    } else if (tag.name == "pageSetup") {
      ReadPaper(tag.attributes, setup);
    } else if (tag.name == "headerFooter") {
      setup.hasHeaderOrFooter = tag.kind == XmlStream::Kind::kStart;
    } else if (tag.name == "conditionalFormatting") {
      setup.hasConditionalFormats = true;
    } else if (tag.name == "rowBreaks" || tag.name == "colBreaks") {
      const bool rows = tag.name == "rowBreaks";
      breaks = rows ? &setup.rowBreaks : &setup.columnBreaks;
      most = rows ? limits::kRows : limits::kColumns;
    } else if (tag.name == "brk" && breaks != nullptr) {
      AddBreak(tag.attributes, most, *breaks);
    }
  }
  Sort(setup.rowBreaks);
  Sort(setup.columnBreaks);
  return setup;
}

}  // namespace plotsmith::xlsx
