#include "render/layout/DataTable.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "render/axes/AxisMap.h"
#include "render/axes/TickLabels.h"
#include "render/plot/LegendKey.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {
namespace {

constexpr double kTextPadding = 2;     // points between a text and the edges of its cell
constexpr double kKeyWidth = 18;       // points; the width of a legend key with the gap after it
constexpr double kRowSpacing = 1.2;    // the height of a row, in line heights
constexpr double kMostHeight = 0.5;    // share of the chart's height
constexpr double kMostOfNames = 0.3;   // share of the chart's width
constexpr std::size_t kMostLines = 3;  // the maximum number of lines in the text of a category
constexpr std::size_t kMostCells = 20'000;

std::vector<const SeriesModel*> SeriesOf(const ChartModel& chart) {
  std::vector<const SeriesModel*> all;
  for (const GroupModel& group : chart.groups) {
    for (const SeriesModel& series : group.series) all.push_back(&series);
  }
  std::stable_sort(all.begin(), all.end(),
                   [](const SeriesModel* a, const SeriesModel* b) { return a->number < b->number; });
  return all;
}

TextStyle StyleOf(const ChartModel& chart) {
  TextStyle style = chart.table->text;
  style.rotation.reset();
  style.stacked = false;
  return style;
}

const AxisModel& AxisOf(const ChartModel& chart) {
  return chart.axes[static_cast<std::size_t>(chart.table->axis)];
}

/// Returns the text of a category. A text with more lines than a cell has becomes one line, which is
/// shortened.
TextBlock CategoryBlock(const std::string& text, const TextStyle& style, double width,
                        const TextMeasure& measure) {
  TextBlock block = LayOut(text, style, measure, width);
  if (block.lines.size() <= kMostLines) return block;
  block = LayOut(text, style, measure);
  Shorten(block, width, measure);
  return block;
}

double WidthOfNames(const ChartModel& chart, const std::vector<const SeriesModel*>& series, double most,
                    const TextMeasure& measure) {
  double widest = 0;
  for (const SeriesModel* one : series) {
    widest = std::max(widest, measure.Measure(one->name, chart.table->text.font).width);
  }
  return std::min(widest + (chart.table->keys ? kKeyWidth : 0) + 2 * kTextPadding, most);
}

std::string ValueText(const ChartModel& chart, const SeriesModel& series, std::size_t point) {
  std::string text;
  if (point < series.values.size() && std::isfinite(series.values[point]) && series.valueFormat) {
    series.valueFormat->AppendNumber(text, series.values[point], chart.dates);
  }
  return text;
}

}  // namespace

TableLayout LayOutTable(const ChartModel& chart, const Rect& bounds, const Rect& plot,
                        const TextMeasure& measure) {
  TableLayout layout;
  const AxisModel& axis = AxisOf(chart);
  const TextStyle style = StyleOf(chart);
  const auto series = SeriesOf(chart);
  const double row = measure.Measure("0", style.font).Height() * kRowSpacing;
  const double width = plot.width / std::max<double>(static_cast<double>(axis.categories.size()), 1);
  layout.isTooNarrow = width < measure.Measure("0", style.font).width + 2 * kTextPadding;
  layout.rows.push_back(plot.Bottom());
  if (layout.isTooNarrow || axis.categories.empty()) return layout;
  layout.columns.push_back(plot.left - WidthOfNames(chart, series, kMostOfNames * bounds.width, measure));
  for (std::size_t i = 0; i <= axis.categories.size(); ++i) {
    layout.columns.push_back(plot.left + width * static_cast<double>(i));
  }
  double head = row;
  for (const std::string& category : axis.categories) {
    head = std::max(head, CategoryBlock(category, style, width - 2 * kTextPadding, measure).height);
  }
  layout.rows.push_back(plot.Bottom() + head);
  const double most = plot.Bottom() + kMostHeight * bounds.height;
  const std::size_t mostSeries = kMostCells / axis.categories.size();
  for (std::size_t i = 0; i < series.size(); ++i) {
    if (i == mostSeries || layout.rows.back() + row > most) {
      layout.leftOut = series.size() - i;
      break;
    }
    layout.rows.push_back(layout.rows.back() + row);
  }
  return layout;
}

namespace {

class TablePainter {
 public:
  TablePainter(Canvas& canvas, const ChartModel& chart, const TableLayout& layout)
      : canvas_(canvas), chart_(chart), layout_(layout), style_(StyleOf(chart)), series_(SeriesOf(chart)) {}

  void Paint() {
    PaintLines();
    const AxisModel& axis = AxisOf(chart_);
    const std::size_t count = axis.categories.size();
    for (std::size_t i = 0; i < count; ++i) {
      const Rect cell = CellAt(0, ColumnOf(i));
      DrawBlock(canvas_, {Role::kTickLabel, axis.number, static_cast<int>(i + 1)},
                CategoryBlock(axis.categories[i], style_, cell.width - 2 * kTextPadding, canvas_.Measure()),
                cell.Center());
    }
    for (std::size_t r = 0; r + 2 < layout_.rows.size(); ++r) {
      const SeriesModel& one = *series_[r];
      PaintName(one, CellAt(r + 1, 0));
      for (std::size_t i = 0; i < count; ++i) {
        PaintText({Role::kTableText, one.number, static_cast<int>(i + 1)}, ValueText(chart_, one, i),
                  CellAt(r + 1, ColumnOf(i)));
      }
    }
  }

 private:
  /// Returns the column of a category. Along a reversed axis, the categories go from right to left.
  std::size_t ColumnOf(std::size_t category) const {
    const AxisModel& axis = AxisOf(chart_);
    return 1 + (axis.reversed ? axis.categories.size() - 1 - category : category);
  }

  Rect CellAt(std::size_t row, std::size_t column) const {
    return {layout_.columns[column], layout_.rows[row], layout_.columns[column + 1] - layout_.columns[column],
            layout_.rows[row + 1] - layout_.rows[row]};
  }

  void PaintText(Tag tag, const std::string& text, const Rect& cell) {
    TextBlock block = LayOut(text, style_, canvas_.Measure());
    Shorten(block, cell.width - 2 * kTextPadding, canvas_.Measure());
    if (!block.IsEmpty()) DrawBlock(canvas_, tag, block, cell.Center());
  }

  void PaintName(const SeriesModel& series, Rect cell) {
    if (chart_.table->keys) {
      constexpr double kHeight = 6, kGap = 4;  // points
      DrawKey(canvas_, chart_, {Role::kLegendKey, series.number},
              {cell.left + kTextPadding, cell.Center().y - kHeight / 2, kKeyWidth - kGap, kHeight});
      cell.left += kKeyWidth;
      cell.width -= kKeyWidth;
    }
    PaintText({Role::kTableText, series.number}, series.name, cell);
  }

  /// Draws the lines between the cells, and the outline around them without the empty corner.
  void PaintLines() {
    const auto& [columns, rows, leftOut, isTooNarrow] = layout_;
    const double left = columns.front(), inner = columns[1], right = columns.back();
    const double top = rows.front(), bottom = rows.back();
    Path lines;
    if (chart_.table->horizontalLines) {
      for (std::size_t i = 1; i + 1 < rows.size(); ++i)
        lines.MoveTo({left, rows[i]}).LineTo({right, rows[i]});
    }
    if (chart_.table->verticalLines) {
      for (std::size_t i = 1; i + 1 < columns.size(); ++i) {
        lines.MoveTo({columns[i], top}).LineTo({columns[i], bottom});
      }
    }
    if (chart_.table->outline) {
      lines.AddPolygon(
          {{inner, top}, {right, top}, {right, bottom}, {left, bottom}, {left, rows[1]}, {inner, rows[1]}});
    }
    canvas_.Add({Role::kTableLine}, std::move(lines), {}, chart_.table->stroke);
  }

  Canvas& canvas_;
  const ChartModel& chart_;
  const TableLayout& layout_;
  const TextStyle style_;
  const std::vector<const SeriesModel*> series_;
};

}  // namespace

void DrawTable(Canvas& canvas, const ChartModel& chart, const TableLayout& layout) {
  if (layout.isTooNarrow)
    canvas.Note("The data table isn't drawn because its columns are too narrow for a text.");
  if (layout.leftOut > 0) {
    canvas.Note("The data table has no room for " + std::to_string(layout.leftOut) +
                " of its series, which are left out.");
  }
  if (layout.rows.size() < 2) return;
  TablePainter(canvas, chart, layout).Paint();
}

}  // namespace plotsmith::render
