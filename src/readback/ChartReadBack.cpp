#include "readback/ChartReadBack.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Values.h"
#include "readback/ChartAppearance.h"
#include "runtime/Strings.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Ref;

namespace {

/// The number of characters of a comment that are read in one call.
constexpr std::int32_t kCommentPiece = 200;

struct TypeEntry {
  std::int32_t lChartType;
  std::string_view sType;
  bool b3D = false, bStacked = false, b100 = false, bExploded = false;
};

constexpr std::array<TypeEntry, 25> kTypes = {{
    {excel::xlColumnClustered, "column"},
    {excel::xlColumnStacked, "column", false, true},
    {excel::xlColumnStacked100, "column", false, true, true},
    {excel::xl3DColumnClustered, "column", true},
    {excel::xl3DColumnStacked, "column", true, true},
    {excel::xl3DColumnStacked100, "column", true, true, true},
    // Columns in depth are drawn side by side again, because no setting describes them.
    {excel::xl3DColumn, "column"},
    {excel::xlBarClustered, "bar"},
    {excel::xlBarStacked, "bar", false, true},
    {excel::xlBarStacked100, "bar", false, true, true},
    {excel::xl3DBarClustered, "bar", true},
    {excel::xl3DBarStacked, "bar", true, true},
    {excel::xl3DBarStacked100, "bar", true, true, true},
    {excel::xlPie, "pie"},
    {excel::xl3DPie, "pie", true},
    {excel::xlPieExploded, "pie", false, false, false, true},
    {excel::xl3DPieExploded, "pie", true, false, false, true},
    {excel::xlArea, "area"},
    {excel::xl3DArea, "area", true},
    {excel::xlAreaStacked, "area", false, true},
    {excel::xlAreaStacked100, "area", false, true, true},
    {excel::xl3DAreaStacked, "area", true, true},
    {excel::xl3DAreaStacked100, "area", true, true, true},
    {excel::xlBubble, "bubble"},
    {excel::xlBubble3DEffect, "bubble", true},
}};

const TypeEntry* FindType(std::int32_t lChartType) {
  const auto oFound = std::find_if(kTypes.begin(), kTypes.end(),
                                   [&](const TypeEntry& oEntry) { return oEntry.lChartType == lChartType; });
  return oFound == kTypes.end() ? nullptr : &*oFound;
}

}  // namespace

void RevEngineerChart(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  if (oChart->SeriesCollection()->Count() <= 0) return;
  RevEngineerChartTitle(oChart, oChartDoc);
  RevEngineerChartType(oChart, oChartDoc);
  RevEngineerNumberFormat(oChart, oChartDoc);
  RevEngineerAutoPersistence(oChart, oChartDoc);
}

void RevEngineerChartTitle(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerChartTitle", [&] {
    const std::string sTitle = oChart->HasTitle() ? oChart->ChartTitle()->Text() : std::string();
    oChartDoc.documentElement().setAttribute("title", sTitle);
  });
}

void RevEngineerChartType(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerChartType", [&] {
    auto oChartElement = oChartDoc.documentElement();
    const TypeEntry* oNamed = FindType(oChart->ChartType());
    const std::string sType = oNamed != nullptr        ? std::string(oNamed->sType)
                              : IsStrBuckChart(oChart) ? "strategic bucket"
                                                       : "unknown";
    // Read the type again, because a host may return another type after its series were read.
    const TypeEntry* oEntry = FindType(oChart->ChartType());
    oChartElement.setAttribute("type", sType);
    RemoveChild(oChartElement, "dynamic-attributes");
    auto oSettings = oChartDoc.createElement("dynamic-attributes");
    oChartElement.appendChild(oSettings);
    const auto append = [&](bool bSet, const char* sSetting) {
      if (!bSet) return;
      auto oAttribute = oChartDoc.createElement("attribute");
      oAttribute.setAttribute("setting", sSetting);
      oSettings.appendChild(oAttribute);
    };
    if (oEntry == nullptr) return;
    append(oEntry->b3D, "3D");
    append(oEntry->bStacked, "stacked");
    append(oEntry->b100, "100%");
    append(oEntry->bExploded, "exploded");
  });
}

void RevEngineerNumberFormat(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerNumberFormat", [&] {
    static constexpr std::array<std::string_view, 3> kUnformatted = {"pie", "bubble", "unknown"};
    auto oChartElement = oChartDoc.documentElement();
    const std::string sType = GetAttributeText(oChartElement, "type");
    std::string sNumberFormat = GetAttributeText(oChartElement, "number-format");
    if (ArrayContains(sType, kUnformatted)) return;
    const bool b100 = HasSetting(oChartElement, "dynamic-attributes", "100%");
    if (oChart->HasAxis(excel::xlValue)) {
      const auto oTickLabels = oChart->Axes(excel::xlValue, excel::xlPrimary)->TickLabels();
      if (!oTickLabels->NumberFormatLinked() && !b100) sNumberFormat = oTickLabels->NumberFormat();
    }
    oChartElement.setAttribute("number-format", sNumberFormat);
  });
}

bool IsStrBuckChart(const Ref<excel::Chart>& oChart) {
  return ReportErrors("PSRevEngineerChart.IsStrBuckChart", false, [&] {
    std::int32_t lBlocks = 0, lBucketValues = 0, lStrangers = 0;
    const auto oSeriesCollection = oChart->SeriesCollection();
    const std::int32_t lCount = oSeriesCollection->Count();
    for (std::int32_t i = 1; i <= lCount; ++i) {
      switch (oSeriesCollection->Item(i)->ChartType()) {
        case excel::xlColumnStacked:
          ++lBlocks;
          break;
        case excel::xlLineMarkers:
        case excel::xlCombination:
          ++lBucketValues;
          break;
        default:
          ++lStrangers;
      }
    }
    return lBlocks > 0 && lBucketValues == 1 && lStrangers == 0;
  });
}

void RevEngineerComment(const Ref<excel::Shape>& oShape, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerComment", [&] {
    auto oChartElement = oChartDoc.documentElement();
    RemoveChild(oChartElement, "comment");
    if (!oShape) return;
    const auto piece = [&](std::int32_t i) {
      return runtime::ToUtf16(oShape->TextFrame()->Characters(i * kCommentPiece + 1, kCommentPiece)->Text());
    };
    std::u16string sComment;  // UTF-16, because a piece may end inside a surrogate pair.
    std::u16string sPiece = piece(0);
    // If the host fails, the text up to that point is kept.
    IgnoreErrors([&] {
      for (std::int32_t i = 1; !sPiece.empty(); ++i) {
        sComment += sPiece;
        sPiece = piece(i);
      }
    });
    auto oComment = oChartDoc.createElement("comment");
    oComment.appendChild(oChartDoc.createTextNode(runtime::ToUtf8(sComment)));
    oChartElement.appendChild(oComment);
  });
}

}  // namespace plotsmith
