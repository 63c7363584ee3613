#include "render/labels/LabelText.h"

#include <cmath>

namespace plotsmith::render {
namespace {

std::string Formatted(const FormatPointer& format, double value, const ChartModel& chart) {
  std::string text;
  if (std::isfinite(value)) {
    if (format) {
      format->AppendNumber(text, value, chart.dates);
    } else {
      xlsx::AppendGeneral(text, value);
    }
  }
  return text;
}

std::string CategoryText(const ChartModel& chart, const GroupModel& group, const SeriesModel& series,
                         std::size_t point) {
  // A point with X values is drawn, and has a label, only if its group has an axis and the point has an X
  // value.
  if (group.HasXValues()) {
    return Formatted(chart.axes[static_cast<std::size_t>(group.category)].format, series.x[point], chart);
  }
  return point < group.categories.size() ? group.categories[point] : "";
}

/// Returns a percentage in the label's number format. If this is General, or if the label also shows a value,
/// which then has this format, the format is 0%.
std::string PercentText(const ChartModel& chart, const LabelModel& label, double share) {
  static const FormatPointer kPercent = xlsx::NumberFormat::Parse("0%");
  const bool ownFormat = label.format && !label.showsValue && !label.format->IsGeneral();
  return Formatted(ownFormat ? label.format : kPercent, share, chart);
}

}  // namespace

RichText LabelText(const ChartModel& chart, const GroupModel& group, const SeriesModel& series,
                   std::size_t point, const LabelModel& label, double share) {
  if (!label.own.IsEmpty()) return label.own;
  const std::string separator = label.separator.value_or(", ");
  std::string text;
  const auto add = [&](const std::string& part) {
    if (part.empty()) return;
    if (!text.empty()) text += separator;
    text += part;
  };
  if (label.showsSeries) add(series.name);
  if (label.showsCategory) add(CategoryText(chart, group, series, point));
  if (label.showsValue)
    add(Formatted(label.format ? label.format : series.valueFormat, series.values[point], chart));
  if (label.showsPercent) add(PercentText(chart, label, share));
  if (label.showsBubbleSize && point < series.sizes.size()) {
    add(Formatted(label.format ? label.format : series.sizeFormat, series.sizes[point], chart));
  }
  return Plain(text, label.text);
}

}  // namespace plotsmith::render
