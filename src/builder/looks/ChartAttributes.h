#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

/// Module PSChartBuilder: drawing steps for several chart families.
namespace plotsmith {

/// Sets the chart's title, or removes it.
void ApplyTitle(const dom::IXMLDOMElement& oChartElement);
/// Shows the legend if the series have headings. Nothing changes without a `series` element.
void ApplyLegendFromHeadings(const dom::IXMLDOMElement& oChartElement);
/// Removes the titles of both axes.
void ClearAxisTitles();
/// The differences between families in the handling of axis titles. The defaults are those of area, bar and
/// column charts.
struct AxisTitleManner {
  bool bSwitchAxisOn = true;    ///< Shows the axis that has a title.
  bool bSizeThroughVal = true;  ///< Converts the font size with Val.
  bool bYield = false;          ///< Lets the host handle events after each `axis`.
};
/// Sets the axis titles of the definition, with the persisted fonts, and shows the axes that have titles.
void ApplyAxisTitles(const dom::IXMLDOMElement& oChartElement, const AxisTitleManner& oManner = {});
/// Links the tick labels of the value axis to the number format of the data, and rotates the axis titles.
void FinishAxes();

/// Sets a text as the name of a series. A text that begins with "=" is passed as the formula of that text,
/// because the host takes it for a reference otherwise.
void SetLiteralName(excel::Series& oSeries, const std::string& sName);

/// Applies the persisted font of data labels.
void SetLabelFont(const runtime::Ref<excel::Font>& oFont);
/// Sets the position (XlDataLabelPosition) and the font of labels, in the order that most families require.
void FormatLabels(const runtime::Ref<excel::DataLabels>& oLabels, std::int32_t lPosition,
                  const runtime::Variant& vAutoScale);
/// Adds labels of a type (XlDataLabelsType) at a position to all series.
void ApplyLabels(std::int32_t lType, std::int32_t lPosition);

/// A setting of `dynamic-attributes`, and its weight in a sum.
struct SettingWeight {
  std::string_view sSetting;  ///< The attribute `setting` of a `dynamic-attribute`.
  std::int32_t lWeight;       ///< The weight, a power of two.
};
/// Returns the sum of the weights of the settings in `dynamic-attributes`. A setting that occurs twice counts
/// twice.
std::int32_t SumOfSettings(const dom::IXMLDOMElement& oChartElement,
                           std::initializer_list<SettingWeight> aWeights, bool bYield = false);

/// Shows or hides the built-in legend according to `mLegendVisibility`. Values other than "show" and "hide"
/// change nothing.
void ApplyLegendVisibility();
/// Deletes the legend entry of the series that was added last.
void DeleteLastLegendEntry();
/// Formats the built-in legend, which must exist. Calls that the host refuses are ignored.
void ApplyLegendAttributes();

}  // namespace plotsmith
