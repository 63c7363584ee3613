#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "builder/state/CPSColor.h"
#include "builder/state/CPSMapInstruction.h"
#include "builder/state/StoredFont.h"
#include "host/excel/Chart.h"
#include "runtime/Collection.h"
#include "runtime/Dictionary.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

/// The variables of module PSChartBuilder: the chart being built, its map and its persisted properties. They
/// live until the next chart's build replaces them.
namespace plotsmith {

/// The series of a strategic bucket chart that marks each bucket's own value. It has no legend entry.
inline constexpr const char* kBucketSeriesName = "Strategic Buckets";

extern std::string mChartType;  ///< `type` of the definition
extern runtime::Ref<excel::Chart> mChart;
extern bool mNewOrCopiedChart;          ///< the first build of a chart that a wizard run has just made
extern std::int32_t mSavedCalculation;  ///< `Application.Calculation` before a refresh run

// The map. Keys are upper-cased texts; positions are indices into the rectangle, from 1; names are the texts
// as first seen.
extern runtime::Dictionary mCategoryPositions;
extern runtime::Dictionary mCategoryNames;
extern runtime::Dictionary mSeriesPositions;
extern runtime::Dictionary mSeriesNames;
extern std::vector<CPSMapInstruction> mMapInstructions;
extern std::int32_t mCategoryCount;                          ///< rows of the rectangle
extern std::int32_t mSeriesCount;                            ///< columns of the rectangle
extern runtime::Ref<runtime::Dictionary> mStrategicBuckets;  ///< the buckets' values by upper-cased name

/// What each series name of a bubble or strategic bucket chart is painted with, in order of first appearance.
extern runtime::Ref<runtime::Collection<runtime::Ref<CPSColor>>> mSeriesColors;

// The persisted properties, see PersistedProperties.h.
extern std::string mLegendVisibility;
extern runtime::Variant mLegendPosition;
extern double mLegendLeft;
extern double mLegendTop;
extern StoredFont mLegendFont;
extern StoredFont mLabelFont;
extern runtime::Variant mLabelFontBackgroundColor;  ///< kept, but no chart is drawn with it
extern StoredFont mBucketLabelFont;                 ///< of the labels on the marks of buckets
extern StoredFont mLabelAxisFont;
extern StoredFont mValueAxisFont;

/// All of them back to how the component starts.
void ResetBuilderVariables();
/// The map's variables only, made new: so each map builder begins.
void ResetMap();

}  // namespace plotsmith
