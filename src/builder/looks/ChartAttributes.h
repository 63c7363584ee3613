#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "dom/Dom.h"
#include "host/excel/Excel.h"
#include "runtime/Ref.h"
#include "runtime/Variant.h"

/// Module PSChartBuilder: the steps that the drawing of several chart families shares.
namespace plotsmith {

void ApplyTitle(const dom::IXMLDOMElement& oChartElement);
/// A legend where the series have headings; nothing changes without a `series` element.
void ApplyLegendFromHeadings(const dom::IXMLDOMElement& oChartElement);
void ClearAxisTitles();
/// What a family does otherwise about its axis titles than area, bar and column charts.
struct AxisTitleManner {
  bool bSwitchAxisOn = true;
  bool bSizeThroughVal = true;
  bool bYield = false;  ///< after each `axis`
};
/// The titles of the definition, with the persisted fonts, and the axes that bear them.
void ApplyAxisTitles(const dom::IXMLDOMElement& oChartElement, const AxisTitleManner& oManner = {});
/// Links the tick labels of the value axis to the number format of the data, and turns the axis titles.
void FinishAxes();

/// The persisted font of data labels.
void SetLabelFont(const runtime::Ref<excel::Font>& oFont);
/// The labels' place and font, in the order of most families.
void DressLabels(const runtime::Ref<excel::DataLabels>& oLabels, std::int32_t lPosition,
                 const runtime::Variant& vAutoScale);
/// Labels all series.
void ApplyLabels(std::int32_t lType, std::int32_t lPosition);

struct SettingWeight {
  std::string_view sSetting;
  std::int32_t lWeight;
};
/// What the settings of `dynamic-attributes` add up to; one that occurs twice counts twice.
std::int32_t SumOfSettings(const dom::IXMLDOMElement& oChartElement,
                           std::initializer_list<SettingWeight> aWeights, bool bYield = false);

/// The built-in legend by `mLegendVisibility`: anything but "show" and "hide" leaves it.
void ApplyLegendVisibility();
/// Takes the entry of the series added last out of the legend.
void DeleteLastLegendEntry();
/// Dresses the built-in legend, which must be there. What the host refuses is passed over.
void ApplyLegendAttributes();

}  // namespace plotsmith
