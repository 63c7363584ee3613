#include "builder/state/PersistedProperties.h"

#include <array>
#include <string_view>

#include "builder/state/BuilderVariables.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/Values.h"
#include "common/YieldToHost.h"
#include "host/excel/Constants.h"
#include "runtime/Variant.h"

namespace plotsmith {

using runtime::Variant;

namespace {

/// A font among the properties. The names of its properties begin with its key: "legend-font-name".
struct FontGroup {
  std::string_view sKey;
  StoredFont& oFont;
  StoredFont oDefaults;
  /// True if an empty text means the default. Reading back stores empty texts for a chart without such a
  /// text.
  bool bEmptyIsDefault = false;
};

/// A property of a font: the end of its key, and the conversion of a stored text to its value.
struct FontProperty {
  std::string_view sSuffix;
  Variant StoredFont::*vValue;
  Variant (*read)(const Variant& vStored);
};

const auto& FontGroups() {
  static const std::array aGroups = {
      FontGroup{"legend", mLegendFont, {"Arial", "Regular", 9, 0, "True"}},
      FontGroup{"label", mLabelFont, {"Arial", "Regular", 9, 0, "True"}},
      FontGroup{"bucket-label", mBucketLabelFont, {"Arial", "Bold", 9, 16777215, "False"}, true},
      FontGroup{"LabelAxis", mLabelAxisFont, {"Arial", "Bold", 10, 0, "True"}, true},
      FontGroup{"ValueAxis", mValueAxisFont, {"Arial", "Bold", 10, 0, "True"}, true},
  };
  return aGroups;
}

const auto& FontProperties() {
  static constexpr auto asStored = [](const Variant& vStored) { return vStored; };
  static const std::array aProperties = {
      FontProperty{"-font-name", &StoredFont::vName, asStored},
      FontProperty{"-font-style", &StoredFont::vStyle, asStored},
      FontProperty{"-font-size", &StoredFont::vSize,
                   [](const Variant& vStored) { return Variant(runtime::Val(vStored)); }},
      FontProperty{"-font-color", &StoredFont::vColor, asStored},
      FontProperty{"-font-autoscale", &StoredFont::vAutoScale,
                   [](const Variant& vStored) { return Variant(SafeBool(vStored)); }},
  };
  return aProperties;
}

void StoreFontProperty(std::string_view sKey, const std::string& sValue) {
  for (const FontGroup& oGroup : FontGroups()) {
    if (!sKey.starts_with(oGroup.sKey)) continue;
    for (const FontProperty& oProperty : FontProperties()) {
      if (sKey.substr(oGroup.sKey.size()) != oProperty.sSuffix) continue;
      const bool bDefault = sValue.empty() && oGroup.bEmptyIsDefault;
      oGroup.oFont.*oProperty.vValue =
          oProperty.read(bDefault ? oGroup.oDefaults.*oProperty.vValue : Variant(sValue));
    }
  }
}

void StoreProperty(const std::string& sKey, const std::string& sValue) {
  if (sKey == "legend-visibility") {
    mLegendVisibility = sValue;
  } else if (sKey == "legend-position") {
    mLegendPosition = sValue;
  } else if (sKey == "legend-left") {
    mLegendLeft = runtime::CDbl(sValue);
  } else if (sKey == "legend-top") {
    mLegendTop = runtime::CDbl(sValue);
  } else if (sKey == "label-font-background-color") {
    mLabelFontBackgroundColor = sValue;
  } else {
    StoreFontProperty(sKey, sValue);
  }
}

}  // namespace

void SetPropertyDefaults() {
  mLegendVisibility = "auto";
  mLegendLeft = mLegendTop = kUnsetPlace;
  mLegendPosition = excel::xlLegendPositionRight;
  mLabelFontBackgroundColor = Variant();
  for (const FontGroup& oGroup : FontGroups()) oGroup.oFont = oGroup.oDefaults;
}

void RetrievePersistedProperties(const dom::IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.RetrievePersistedProperties", [&] {
    SetPropertyDefaults();
    for (const auto& oPersist : oChartElement.selectNodes("auto-persistence[1]/persist")) {
      StoreProperty(GetAttributeText(oPersist, "property"), GetAttributeText(oPersist, "value"));
      YieldToHost();
    }
    // A position that was set by hand overrides a stored one.
    if (mLegendLeft != kUnsetPlace || mLegendTop != kUnsetPlace) mLegendPosition = 0;
  });
}

}  // namespace plotsmith
