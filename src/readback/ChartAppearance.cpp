#include "readback/ChartAppearance.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Values.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Ref;
using runtime::Variant;

namespace {

/// An axis title: its text and the values of its font properties. A missing title, and a property with
/// several values, are "".
struct AxisLabel {
  std::string sText;
  std::string sFontSize, sFontName, sFontColor, sFontStyle, sAutoScale;

  bool operator==(const AxisLabel&) const = default;
};

/// One of the two axes, with the names that the definition uses for it.
struct LabelledAxis {
  const char* sType;  ///< The `type` of its `axis` element.
  std::string sKeys;  ///< The beginning of its property names.
  std::int32_t lAxis;
  AxisLabel oOld;
  std::string sSticky;
  AxisLabel oNew;
};

/// Appends a property. Raises error 94 for Null.
void AppendPersist(IXMLDOMDocument2& oChartDoc, const std::string& sProperty, const Variant& vValue) {
  auto oAutoPersistence = oChartDoc.documentElement().selectSingleNode("auto-persistence");
  auto oPersist = oChartDoc.createElement("persist");
  oPersist.setAttribute("property", sProperty);
  oPersist.setAttribute("value", runtime::CStr(vValue));
  oAutoPersistence.appendChild(oPersist);
}

void ReadDefinition(LabelledAxis& oAxis, const IXMLDOMElement& oAxes) {
  if (oAxes) {
    for (const IXMLDOMElement& oElement : oAxes.selectNodes("axis")) {
      if (GetAttributeText(oElement, "type") != oAxis.sType) continue;
      const auto base = [&](const char* sProperty) {
        return GetAttributeText(oElement, (oAxis.sKeys + sProperty).c_str());
      };
      oAxis.sSticky = GetAttributeText(oElement, "sticky");
      oAxis.oOld = {GetAttributeText(oElement, "label"),
                    base("-font-size"),
                    base("-font-name"),
                    base("-font-color"),
                    base("-font-style"),
                    base("-font-autoscale")};
    }
  }
  const auto fill = [](std::string& sBase, const char* sDefault) {
    if (sBase.empty()) sBase = sDefault;
  };
  fill(oAxis.oOld.sFontName, "Arial");
  fill(oAxis.oOld.sFontSize, "10");
  fill(oAxis.oOld.sFontStyle, "Bold");
  fill(oAxis.oOld.sFontColor, "0");
  fill(oAxis.oOld.sAutoScale, "True");
}

void ReadChart(LabelledAxis& oAxis, const Ref<excel::Chart>& oChart) {
  const auto oChartAxis = oChart->Axes(oAxis.lAxis, excel::xlPrimary);
  if (!oChartAxis->HasTitle()) return;
  const auto oTitle = oChartAxis->AxisTitle();
  const auto oFont = oTitle->Font();
  Variant vSize = oFont->Size();
  Variant vName = oFont->Name();
  // A title with several fonts has no font name.
  if (vName.IsNull()) vName = oChart->Application()->StandardFont();
  if (vSize.IsNull()) vSize = oChart->Application()->StandardFontSize();
  oAxis.oNew = {oTitle->Text(),
                SafeString(vSize),
                SafeString(vName),
                SafeString(oFont->Color()),
                SafeString(oFont->FontStyle()),
                SafeString(oTitle->AutoScaleFont())};
}

void WriteAxis(LabelledAxis& oAxis, IXMLDOMDocument2& oChartDoc, IXMLDOMElement& oAxes) {
  const AxisLabel& oNew = oAxis.oNew;
  if (oNew != oAxis.oOld) oAxis.sSticky = "yes";
  if (oNew.sText.empty() && oAxis.sSticky != "yes") return;
  AppendPersist(oChartDoc, oAxis.sKeys + "-font-size", oNew.sFontSize);
  AppendPersist(oChartDoc, oAxis.sKeys + "-font-name", oNew.sFontName);
  AppendPersist(oChartDoc, oAxis.sKeys + "-font-color", oNew.sFontColor);
  AppendPersist(oChartDoc, oAxis.sKeys + "-font-style", oNew.sFontStyle);
  AppendPersist(oChartDoc, oAxis.sKeys + "-font-autoscale", oNew.sAutoScale);
  auto oElement = oChartDoc.createElement("axis");
  oElement.setAttribute("type", oAxis.sType);
  oElement.setAttribute("label", oNew.sText);
  oElement.setAttribute("sticky", oAxis.sSticky);
  oAxes.appendChild(oElement);
}

/// The values of the font properties of a series' labels.
struct LabelFont {
  std::string sName = "Arial", sStyle = "Regular", sSize = "9", sColor = "0", sBackgroundColor = "-4105",
              sAutoScale = "True";

  bool operator==(const LabelFont&) const = default;
};

std::string OrDefault(const Variant& vValue, const std::string& sDefault) {
  return vValue.IsNull() ? sDefault : SafeString(vValue);
}

/// Reads the font of a series' labels. A property that differs between the labels has its default.
LabelFont ReadLabelFont(excel::DataLabels& oLabels, excel::Font& oFont) {
  LabelFont oRead;
  const auto read = [](std::string& sProperty, const Variant& vValue) {
    sProperty = OrDefault(vValue, sProperty);
  };
  read(oRead.sName, oFont.Name());
  read(oRead.sStyle, oFont.FontStyle());
  read(oRead.sSize, oFont.Size());
  read(oRead.sColor, oFont.Color());
  read(oRead.sBackgroundColor, oFont.Background());
  read(oRead.sAutoScale, oLabels.AutoScaleFont());
  return oRead;
}

/// The number of series for each font, in the order of the first occurrence.
using FontCounts = std::vector<std::pair<LabelFont, std::int32_t>>;

void Count(FontCounts& aCounts, const LabelFont& oFont) {
  const auto oCount =
      std::find_if(aCounts.begin(), aCounts.end(), [&](const auto& oOther) { return oOther.first == oFont; });
  if (oCount == aCounts.end()) {
    aCounts.emplace_back(oFont, 1);
  } else {
    ++oCount->second;
  }
}

/// Returns the least frequent font, or the first of several. Fonts of at least `kOften` series are excluded.
LabelFont RarestFont(const FontCounts& aCounts) {
  constexpr std::int32_t kOften = 9999;
  LabelFont oRarest;
  std::int32_t lBest = kOften;
  for (const auto& [oFont, lCount] : aCounts) {
    if (lCount >= lBest) continue;
    oRarest = oFont;
    lBest = lCount;
  }
  return oRarest;
}

/// The font and the contents of a chart's data labels.
struct Labels {
  FontCounts aFonts;
  LabelFont oBucketFont = {"", "", "",
                           "", "", ""};  ///< The font of the bucket value series, or "" if there is none.
  bool bValues = false, bPercentages = false;
};

LabelFont ReadBucketFont(excel::DataLabels& oLabels, excel::Font& oFont) {
  return {OrDefault(oFont.Name(), "Arial"),
          OrDefault(oFont.FontStyle(), "Bold"),
          OrDefault(oFont.Size(), "9"),
          OrDefault(oFont.Color(), "16777215"),
          "",
          OrDefault(oLabels.AutoScaleFont(), "False")};
}

void ReadLabels(excel::Series& oSeries, Labels& oRead) {
  const auto oLabels = oSeries.DataLabels();
  const auto oFont = oLabels->Font();
  if (oSeries.ChartType() == excel::xlCombination) {
    oRead.oBucketFont = ReadBucketFont(*oLabels, *oFont);
    return;
  }
  if (oFont) Count(oRead.aFonts, ReadLabelFont(*oLabels, *oFont));
  const Variant vType = oLabels->Type();
  if (vType == Variant(excel::xlDataLabelsShowValue)) oRead.bValues = true;
  if (vType == Variant(excel::xlDataLabelsShowPercent)) oRead.bPercentages = true;
}

Labels ReadAllLabels(const Ref<excel::Chart>& oChart) {
  Labels oRead;
  const auto oSeriesCollection = oChart->SeriesCollection();
  const std::int32_t lSeries = oSeriesCollection->Count();
  for (std::int32_t i = 1; i <= lSeries; ++i) {
    const auto oSeries = oSeriesCollection->Item(i);
    if (ValueOr(false, [&] { return oSeries->HasDataLabels(); })) ReadLabels(*oSeries, oRead);
  }
  return oRead;
}

void AppendLabelFonts(IXMLDOMDocument2& oChartDoc, const Labels& oRead) {
  const LabelFont oFont = RarestFont(oRead.aFonts);
  AppendPersist(oChartDoc, "label-font-name", oFont.sName);
  AppendPersist(oChartDoc, "label-font-style", oFont.sStyle);
  AppendPersist(oChartDoc, "label-font-size", oFont.sSize);
  AppendPersist(oChartDoc, "label-font-color", oFont.sColor);
  AppendPersist(oChartDoc, "label-font-background-color", oFont.sBackgroundColor);
  AppendPersist(oChartDoc, "label-font-autoscale", oFont.sAutoScale);
  AppendPersist(oChartDoc, "bucket-label-font-name", oRead.oBucketFont.sName);
  AppendPersist(oChartDoc, "bucket-label-font-size", oRead.oBucketFont.sSize);
  AppendPersist(oChartDoc, "bucket-label-font-color", oRead.oBucketFont.sColor);
  AppendPersist(oChartDoc, "bucket-label-font-style", oRead.oBucketFont.sStyle);
  AppendPersist(oChartDoc, "bucket-label-font-autoscale", oRead.oBucketFont.sAutoScale);
}

/// Replaces `data-labels`, but keeps `manual-labels`, which isn't read from the chart.
void WriteDataLabels(IXMLDOMDocument2& oChartDoc, const Labels& oRead) {
  auto oChartElement = oChartDoc.documentElement();
  std::string sManualLabels;
  if (const auto oOld = oChartElement.selectSingleNode("data-labels")) {
    sManualLabels = GetAttributeText(oOld, "manual-labels");
  }
  RemoveChild(oChartElement, "data-labels");
  auto oDataLabels = oChartDoc.createElement("data-labels");
  if (!sManualLabels.empty()) oDataLabels.setAttribute("manual-labels", sManualLabels);
  oChartElement.appendChild(oDataLabels);
  const auto append = [&](bool bSet, const char* sShow) {
    if (!bSet) return;
    auto oDataLabel = oChartDoc.createElement("data-label");
    oDataLabel.setAttribute("show", sShow);
    oDataLabels.appendChild(oDataLabel);
  };
  append(oRead.bValues, "values");
  append(oRead.bPercentages, "percentages");
}

}  // namespace

void RevEngineerAutoPersistence(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  // Error reports use this name for historical reasons.
  ReportErrors("PSRevEngineerChart.RevEngineerNumberFormat", [&] {
    auto oChartElement = oChartDoc.documentElement();
    RemoveChild(oChartElement, "auto-persistence");
    oChartElement.appendChild(oChartDoc.createElement("auto-persistence"));
    RevEngineerAxisLabels(oChart, oChartDoc);
    RevEngineerChartLegend(oChart, oChartDoc);
    RevEngineerChartDataLabels(oChart, oChartDoc);
  });
}

void RevEngineerAxisLabels(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerAxisLabels", [&] {
    switch (oChart->ChartType()) {
      case excel::xlPie:
      case excel::xl3DPie:
      case excel::xlPieExploded:
      case excel::xl3DPieExploded:
        return;
    }
    auto oChartElement = oChartDoc.documentElement();
    LabelledAxis oLabelAxis = {"label", "LabelAxis", excel::xlCategory, {}, {}, {}};
    LabelledAxis oValueAxis = {"value", "ValueAxis", excel::xlValue, {}, {}, {}};
    auto oOldAxes = oChartElement.selectSingleNode("axes");
    ReadDefinition(oLabelAxis, oOldAxes);
    ReadDefinition(oValueAxis, oOldAxes);
    RemoveChild(oChartElement, "axes");
    ReadChart(oValueAxis, oChart);
    ReadChart(oLabelAxis, oChart);
    auto oAxes = oChartDoc.createElement("axes");
    oChartElement.appendChild(oAxes);
    WriteAxis(oLabelAxis, oChartDoc, oAxes);
    WriteAxis(oValueAxis, oChartDoc, oAxes);
  });
}

void RevEngineerChartLegend(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerChartLegend", [&] {
    const bool bLegend = oChart->HasLegend();
    AppendPersist(oChartDoc, "legend-visibility", bLegend ? "show" : "hide");
    if (!bLegend) return;
    const auto oLegend = oChart->Legend();
    const std::int32_t lPosition = ValueOr(std::int32_t{0}, [&] { return oLegend->Position(); });
    if (lPosition != 0) {
      AppendPersist(oChartDoc, "legend-position", lPosition);
    } else {
      AppendPersist(oChartDoc, "legend-left", oLegend->Left());
      AppendPersist(oChartDoc, "legend-top", oLegend->Top());
    }
    const auto oFont = oLegend->Font();
    const Variant vName = oFont->Name();
    const Variant vStyle = oFont->FontStyle();
    const Variant vSize = oFont->Size();
    const Variant vColor = oFont->Color();
    const Variant vAutoScale = oLegend->AutoScaleFont();
    // A property that differs between the entries is Null. It isn't stored.
    IgnoreErrors([&] { AppendPersist(oChartDoc, "legend-font-name", vName); },
                 [&] { AppendPersist(oChartDoc, "legend-font-style", vStyle); },
                 [&] { AppendPersist(oChartDoc, "legend-font-size", vSize); },
                 [&] { AppendPersist(oChartDoc, "legend-font-color", vColor); },
                 [&] { AppendPersist(oChartDoc, "legend-font-autoscale", vAutoScale); });
  });
}

void RevEngineerChartDataLabels(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerChartDataLabels", [&] {
    const Labels oRead = ReadAllLabels(oChart);
    AppendLabelFonts(oChartDoc, oRead);
    WriteDataLabels(oChartDoc, oRead);
  });
}

}  // namespace plotsmith
