#include "qt/book/ChartTypeNames.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/excel/Constants.h"

namespace plotsmith::qtbook {
namespace {

constexpr std::array<std::pair<std::int32_t, const char*>, 29> kNames = {{
    {excel::xlArea, "Area chart"},
    {excel::xl3DArea, "3-D area chart"},
    {excel::xlAreaStacked, "Stacked area chart"},
    {excel::xlAreaStacked100, "100% stacked area chart"},
    {excel::xl3DAreaStacked, "3-D stacked area chart"},
    {excel::xl3DAreaStacked100, "3-D 100% stacked area chart"},
    {excel::xlColumnClustered, "Column chart"},
    {excel::xlColumnStacked, "Stacked column chart"},
    {excel::xlColumnStacked100, "100% stacked column chart"},
    {excel::xl3DColumn, "3-D column chart"},
    {excel::xl3DColumnClustered, "3-D clustered column chart"},
    {excel::xl3DColumnStacked, "3-D stacked column chart"},
    {excel::xl3DColumnStacked100, "3-D 100% stacked column chart"},
    {excel::xlBarClustered, "Bar chart"},
    {excel::xlBarStacked, "Stacked bar chart"},
    {excel::xlBarStacked100, "100% stacked bar chart"},
    {excel::xl3DBarClustered, "3-D bar chart"},
    {excel::xl3DBarStacked, "3-D stacked bar chart"},
    {excel::xl3DBarStacked100, "3-D 100% stacked bar chart"},
    {excel::xlPie, "Pie chart"},
    {excel::xl3DPie, "3-D pie chart"},
    {excel::xlPieExploded, "Exploded pie chart"},
    {excel::xl3DPieExploded, "3-D exploded pie chart"},
    {excel::xlXYScatter, "Scatter chart"},
    {excel::xlBubble, "Bubble chart"},
    {excel::xlBubble3DEffect, "3-D bubble chart"},
    {excel::xlLine, "Line chart"},
    {excel::xlLineMarkers, "Line chart with markers"},
    {excel::xlCombination, "Combination chart"},
}};

}  // namespace

QString ChartTypeName(std::int32_t type) {
  const auto found =
      std::find_if(kNames.begin(), kNames.end(), [&](const auto& entry) { return entry.first == type; });
  return QString::fromLatin1(found == kNames.end() ? "Chart" : found->second);
}

}  // namespace plotsmith::qtbook
