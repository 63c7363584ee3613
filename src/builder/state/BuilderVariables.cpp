#include "builder/state/BuilderVariables.h"

#include "builder/state/PersistedProperties.h"

namespace plotsmith {

using runtime::Dictionary;
using runtime::Variant;

std::string mChartType;
runtime::Ref<excel::Chart> mChart;
bool mNewOrCopiedChart = false;
std::int32_t mSavedCalculation = 0;

Dictionary mCategoryPositions;
Dictionary mCategoryNames;
Dictionary mSeriesPositions;
Dictionary mSeriesNames;
std::vector<CPSMapInstruction> mMapInstructions;
std::int32_t mCategoryCount = 0;
std::int32_t mSeriesCount = 0;
runtime::Ref<Dictionary> mStrategicBuckets;

runtime::Ref<runtime::Collection<runtime::Ref<CPSColor>>> mSeriesColors;

std::string mLegendVisibility;
Variant mLegendPosition;
double mLegendLeft = 0;
double mLegendTop = 0;
StoredFont mLegendFont, mLabelFont, mBucketLabelFont, mLabelAxisFont, mValueAxisFont;
Variant mLabelFontBackgroundColor;

void ResetMap() {
  mCategoryPositions = {};
  mCategoryNames = {};
  mSeriesPositions = {};
  mSeriesNames = {};
  mMapInstructions.clear();
}

void ResetBuilderVariables() {
  mChartType.clear();
  mChart = nullptr;
  mNewOrCopiedChart = false;
  mSavedCalculation = 0;
  ResetMap();
  mCategoryCount = 0;
  mSeriesCount = 0;
  mStrategicBuckets = nullptr;
  mSeriesColors = nullptr;
  SetPropertyDefaults();
}

}  // namespace plotsmith
