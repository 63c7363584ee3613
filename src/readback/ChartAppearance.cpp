#include "readback/ChartAppearance.h"

#include <algorithm>
#include <array>
#include <string>

#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "runtime/Dictionary.h"
#include "runtime/Variant.h"

namespace plotsmith {

using dom::IXMLDOMDocument2;
using dom::IXMLDOMElement;
using runtime::Ref;
using runtime::Variant;

namespace {

/// An axis title: its text, and its font by the texts of its properties. One that isn't there, or has no one
/// value for a property, has "".
struct AxisLabel {
  std::string sText;
  std::string sFontSize, sFontName, sFontColor, sFontStyle, sAutoScale;

  bool operator==(const AxisLabel&) const = default;
};

/// One of the two axes, from its element in the definition to the keys of its properties.
struct LabelledAxis {
  const char* sType;  ///< `type` of an `axis`
  std::string sKeys;  ///< what its properties begin with
  std::int32_t lAxis;
  AxisLabel oOld;
  std::string sSticky;
  AxisLabel oNew;
};

void AppendPersist(IXMLDOMDocument2& oChartDoc, const std::string& sProperty, const Variant& vValue) {
  auto oAutoPersistence = oChartDoc.documentElement().selectSingleNode("auto-persistence");
  auto oPersist = oChartDoc.createElement("persist");
  oPersist.setAttribute("property", sProperty);
  oPersist.setAttribute("value", SafeString(vValue));
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
  // a title of several fonts has none of its own
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

/// The font of labels by the texts of its properties, in the order in which they are stored.
using LabelFont = std::array<std::string, 6>;  // name, style, size, color, background color, autoscale

const LabelFont& DefaultLabelFont() {
  static const LabelFont aFont = {"Arial", "Regular", "9", "0", "-4105", "True"};
  return aFont;
}

constexpr char kFontSeparator = '@';

/// A property on which the labels of a series disagree counts as its default.
std::string LabelFontKey(excel::DataLabels& oLabels, excel::Font& oFont) {
  const std::array<Variant, 6> aValues = {oFont.Name(),  oFont.FontStyle(),  oFont.Size(),
                                          oFont.Color(), oFont.Background(), oLabels.AutoScaleFont()};
  std::string sKey;
  for (std::size_t i = 0; i < aValues.size(); ++i) {
    if (i > 0) sKey += kFontSeparator;
    sKey += aValues[i].IsNull() ? DefaultLabelFont()[i] : SafeString(aValues[i]);
  }
  return sKey;
}

LabelFont SplitLabelFont(const std::string& sKey) {
  LabelFont aFont;
  std::size_t lFrom = 0;
  for (std::string& sPart : aFont) {
    const std::size_t lTo = std::min(sKey.find(kFontSeparator, lFrom), sKey.size());
    sPart = sKey.substr(lFrom, lTo - lFrom);
    lFrom = std::min(lTo + 1, sKey.size());
  }
  return aFont;
}

/// The rarest of the fonts, the first of equals. Nothing rarer than `kOften` series is looked for.
LabelFont RarestFont(const runtime::Dictionary& oFonts) {
  constexpr std::int32_t kOften = 9999;
  LabelFont aFont = DefaultLabelFont();
  std::int32_t lBest = kOften;
  for (const auto& [sKey, vCount] : oFonts) {
    const std::int32_t lCount = runtime::CLng(vCount);
    if (lCount >= lBest) continue;
    aFont = SplitLabelFont(sKey);
    lBest = lCount;
  }
  return aFont;
}

std::string OrDefault(const Variant& vValue, const char* sDefault) {
  return vValue.IsNull() ? sDefault : SafeString(vValue);
}

}  // namespace

void RevEngineerAutoPersistence(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  // the name under which a failure here has always been reported
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
    IgnoreErrors([&] { AppendPersist(oChartDoc, "legend-font-name", vName); },
                 [&] { AppendPersist(oChartDoc, "legend-font-style", vStyle); },
                 [&] { AppendPersist(oChartDoc, "legend-font-size", vSize); },
                 [&] { AppendPersist(oChartDoc, "legend-font-color", vColor); },
                 [&] { AppendPersist(oChartDoc, "legend-font-autoscale", vAutoScale); });
  });
}

void RevEngineerChartDataLabels(const Ref<excel::Chart>& oChart, IXMLDOMDocument2& oChartDoc) {
  ReportErrors("PSRevEngineerChart.RevEngineerChartDataLabels", [&] {
    runtime::Dictionary oFonts;
    bool bValues = false, bPercentages = false;
    std::string sBucketName, sBucketStyle, sBucketSize, sBucketColor, sBucketAutoScale;
    const auto oSeriesCollection = oChart->SeriesCollection();
    const std::int32_t lSeries = oSeriesCollection->Count();
    for (std::int32_t i = 1; i <= lSeries; ++i) {
      const auto oSeries = oSeriesCollection->Item(i);
      if (!ValueOr(false, [&] { return oSeries->HasDataLabels(); })) continue;
      const auto oLabels = oSeries->DataLabels();
      const auto oFont = oLabels->Font();
      if (oSeries->ChartType() == excel::xlCombination) {
        sBucketName = OrDefault(oFont->Name(), "Arial");
        sBucketStyle = OrDefault(oFont->FontStyle(), "Bold");
        sBucketSize = OrDefault(oFont->Size(), "9");
        sBucketColor = OrDefault(oFont->Color(), "16777215");
        sBucketAutoScale = OrDefault(oLabels->AutoScaleFont(), "False");
        continue;
      }
      if (oFont) {
        Variant& vCount = oFonts.Item(LabelFontKey(*oLabels, *oFont));
        vCount = runtime::CLng(vCount) + 1;
      }
      const Variant vType = oLabels->Type();
      if (vType == Variant(excel::xlDataLabelsShowValue)) bValues = true;
      if (vType == Variant(excel::xlDataLabelsShowPercent)) bPercentages = true;
    }

    const LabelFont aFont = RarestFont(oFonts);
    static constexpr std::array<const char*, 6> kKeys = {"label-font-name",
                                                         "label-font-style",
                                                         "label-font-size",
                                                         "label-font-color",
                                                         "label-font-background-color",
                                                         "label-font-autoscale"};
    for (std::size_t i = 0; i < kKeys.size(); ++i) AppendPersist(oChartDoc, kKeys[i], aFont[i]);
    AppendPersist(oChartDoc, "bucket-label-font-name", sBucketName);
    AppendPersist(oChartDoc, "bucket-label-font-size", sBucketSize);
    AppendPersist(oChartDoc, "bucket-label-font-color", sBucketColor);
    AppendPersist(oChartDoc, "bucket-label-font-style", sBucketStyle);
    AppendPersist(oChartDoc, "bucket-label-font-autoscale", sBucketAutoScale);

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
    append(bValues, "values");
    append(bPercentages, "percentages");
  });
}

}  // namespace plotsmith
