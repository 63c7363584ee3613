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
/// keep their values until the next build.
namespace plotsmith {

/// The series of a strategic bucket chart that marks each bucket's own value. It has no legend entry.
inline constexpr const char* kBucketSeriesName = "Strategic Buckets";

extern std::string mChartType;             ///< The attribute `type` of the definition.
extern runtime::Ref<excel::Chart> mChart;  ///< The chart.
extern bool mNewOrCopiedChart;  ///< Whether this is the first build of a chart that the wizard has just made.
extern std::int32_t mSavedCalculation;  ///< The value of `Application.Calculation` before a refresh.

/// The map. Keys are texts in upper case. Positions are indices into the rectangle, from 1. Names are the
/// texts in their first spelling.
///@{
extern runtime::Dictionary mCategoryPositions;
extern runtime::Dictionary mCategoryNames;
extern runtime::Dictionary mSeriesPositions;
extern runtime::Dictionary mSeriesNames;
extern std::vector<CPSMapInstruction> mMapInstructions;
///@}
extern std::int32_t mCategoryCount;  ///< The number of rows of the rectangle.
extern std::int32_t mSeriesCount;    ///< The number of columns of the rectangle.
extern runtime::Ref<runtime::Dictionary>
    mStrategicBuckets;  ///< The values of the buckets by name in upper case.

/// The fill of each series name of a bubble or strategic bucket chart, in the order of first appearance.
extern runtime::Ref<runtime::Collection<runtime::Ref<CPSColor>>> mSeriesColors;

/// The persisted properties; see PersistedProperties.h.
///@{
extern std::string mLegendVisibility;
extern runtime::Variant mLegendPosition;
extern double mLegendLeft;
extern double mLegendTop;
extern StoredFont mLegendFont;
extern StoredFont mLabelFont;
extern runtime::Variant mLabelFontBackgroundColor;  ///< It is stored, but not drawn.
extern StoredFont mBucketLabelFont;                 ///< The font of the labels on the marks of buckets.
extern StoredFont mLabelAxisFont;
extern StoredFont mValueAxisFont;
///@}

/// Resets all of these variables to their values at the start of the component.
void ResetBuilderVariables();
/// Empties the map. Each map builder begins with this.
void ResetMap();

}  // namespace plotsmith
