#include "builder/PersistedProperties.h"

#include <array>
#include <string_view>

#include "builder/BuilderVariables.h"
#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "host/excel/Constants.h"
#include "runtime/Variant.h"

namespace plotsmith {

using runtime::Variant;

namespace {

/// How a stored text becomes the variable's value.
enum class Reading { kText, kVal, kBool };

struct Property {
  std::string_view sKey;  ///< `property` of a `persist`
  Variant* vVariable;
  Variant vDefault;
  Reading eReading = Reading::kText;
  /// Read-back stores an empty text where the chart has no such thing; it means the default.
  bool bEmptyIsDefault = false;
};

const auto& Properties() {
  using enum Reading;
  static const std::array aProperties = {
      Property{"legend-position", &mLegendPosition, excel::xlLegendPositionRight},
      Property{"legend-font-name", &mLegendFontName, "Arial"},
      Property{"legend-font-style", &mLegendFontStyle, "Regular"},
      Property{"legend-font-size", &mLegendFontSize, 9, kVal},
      Property{"legend-font-color", &mLegendFontColor, 0},
      Property{"legend-font-autoscale", &mLegendFontAutoScale, "True", kBool},
      Property{"label-font-name", &mLabelFontName, "Arial"},
      Property{"label-font-style", &mLabelFontStyle, "Regular"},
      Property{"label-font-size", &mLabelFontSize, 9, kVal},
      Property{"label-font-color", &mLabelFontColor, 0},
      Property{"label-font-background-color", &mLabelFontBackgroundColor, Variant()},
      Property{"label-font-autoscale", &mLabelFontAutoScale, "True", kBool},
      Property{"bucket-label-font-name", &mBucketLabelFontName, "Arial", kText, true},
      Property{"bucket-label-font-size", &mBucketLabelFontSize, 9, kVal, true},
      Property{"bucket-label-font-style", &mBucketLabelFontStyle, "Bold", kText, true},
      Property{"bucket-label-font-color", &mBucketLabelFontColor, 16777215, kText, true},
      Property{"bucket-label-font-autoscale", &mBucketLabelFontAutoScale, "False", kBool, true},
      Property{"LabelAxis-font-name", &mLabelAxisFontName, "Arial", kText, true},
      Property{"LabelAxis-font-size", &mLabelAxisFontSize, 10, kVal, true},
      Property{"LabelAxis-font-style", &mLabelAxisFontStyle, "Bold", kText, true},
      Property{"LabelAxis-font-color", &mLabelAxisFontColor, 0, kText, true},
      Property{"LabelAxis-font-autoscale", &mLabelAxisFontAutoScale, "True", kBool, true},
      Property{"ValueAxis-font-name", &mValueAxisFontName, "Arial", kText, true},
      Property{"ValueAxis-font-size", &mValueAxisFontSize, 10, kVal, true},
      Property{"ValueAxis-font-style", &mValueAxisFontStyle, "Bold", kText, true},
      Property{"ValueAxis-font-color", &mValueAxisFontColor, 0, kText, true},
      Property{"ValueAxis-font-autoscale", &mValueAxisFontAutoScale, "True", kBool, true},
  };
  return aProperties;
}

Variant ValueOf(const Property& oProperty, const std::string& sValue) {
  const Variant vValue = sValue.empty() && oProperty.bEmptyIsDefault ? oProperty.vDefault : Variant(sValue);
  switch (oProperty.eReading) {
    case Reading::kVal:
      return runtime::Val(vValue);
    case Reading::kBool:
      return SafeBool(vValue);
    case Reading::kText:
      break;
  }
  return vValue;
}

void StoreProperty(const std::string& sKey, const std::string& sValue) {
  if (sKey == "legend-visibility") {
    mLegendVisibility = sValue;
  } else if (sKey == "legend-left") {
    mLegendLeft = runtime::CDbl(sValue);
  } else if (sKey == "legend-top") {
    mLegendTop = runtime::CDbl(sValue);
  } else {
    for (const Property& oProperty : Properties()) {
      if (oProperty.sKey == sKey) *oProperty.vVariable = ValueOf(oProperty, sValue);
    }
  }
}

}  // namespace

void SetPropertyDefaults() {
  mLegendVisibility = "auto";
  mLegendLeft = mLegendTop = kUnsetPlace;
  for (const Property& oProperty : Properties()) *oProperty.vVariable = oProperty.vDefault;
}

void RetrievePersistedProperties(const dom::IXMLDOMElement& oChartElement) {
  ReportErrors("PSChartBuilder.RetrievePersistedProperties", [&] {
    SetPropertyDefaults();
    for (const auto& oPersist : oChartElement.selectNodes("auto-persistence/persist")) {
      StoreProperty(GetAttributeText(oPersist, "property"), GetAttributeText(oPersist, "value"));
      YieldToHost();
    }
    // a place taken by hand beats a stored position
    if (mLegendLeft != kUnsetPlace || mLegendTop != kUnsetPlace) mLegendPosition = 0;
  });
}

}  // namespace plotsmith
