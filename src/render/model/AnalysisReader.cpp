#include <algorithm>
#include <cmath>
#include <limits>

#include "render/model/ChartReader.h"
#include "render/model/DateSlots.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr Stroke kThinLine = {Color{0, 0, 0, 1}, 0.75};
constexpr long long kLongestPeriod = 255;  // the maximum number of points in the period of a moving average
constexpr double kMostFittedPoints = 4e6;  // the maximum for all trendlines of a chart together; see CostOf

void AddOnce(Notes& notes, const std::string& sentence) {
  if (std::find(notes.begin(), notes.end(), sentence) == notes.end()) notes.push_back(sentence);
}

/// The X values of a series for a trendline, and the number that is subtracted from them to get the number
/// along the axis.
struct TrendPlaces {
  std::vector<double> x;
  double shift = 0;
};

/// Returns the X values of a series for a trendline: its own X values, serial numbers of dates, or the
/// numbers of categories from 1.
TrendPlaces PlacesOf(const ChartModel& chart, const GroupModel& group, const SeriesModel& series) {
  TrendPlaces places;
  const AxisModel* axis =
      group.category < 0 ? nullptr : &chart.axes[static_cast<std::size_t>(group.category)];
  if (group.HasXValues()) {
    places.x = series.x;
    return places;
  }
  const DateSlots* dates = axis != nullptr && axis->dates ? &*axis->dates : nullptr;
  if (dates != nullptr && dates->base == TimeUnit::kDays) {
    places.shift = SerialOf(dates->first, dates->base, chart.dates) - 1;
  }
  for (std::size_t i = 0; i < series.values.size(); ++i) {
    const bool hasDate = dates != nullptr && i < dates->positions.size();
    places.x.push_back((hasDate ? dates->positions[i] : static_cast<double>(i)) + 1 + places.shift);
  }
  return places;
}

/// The mean, the standard deviation and the standard error of a sample; NaN if there is no sample.
struct Spread {
  double mean = kNothing, deviation = kNothing, error = kNothing;
};

Spread SpreadOf(const std::vector<double>& numbers) {
  double count = 0, sum = 0, squares = 0, most = 0;
  for (const double number : numbers) {
    if (std::isfinite(number)) most = std::max(most, std::abs(number));
  }
  if (!(most > 0)) most = 1;
  for (const double number : numbers) {
    if (!std::isfinite(number)) continue;
    sum += number / most;
    ++count;
  }
  if (!(count > 1)) return {};
  for (const double number : numbers) {
    if (std::isfinite(number)) squares += std::pow(number / most - sum / count, 2);
  }
  const double deviation = std::sqrt(squares / (count - 1)) * most;
  return {sum / count * most, deviation, deviation / std::sqrt(count)};
}

/// Returns the custom amount of a point. If there is only one amount, it applies to all points.
double CustomAmount(const std::vector<double>& amounts, std::size_t point) {
  if (amounts.size() == 1) return amounts.front();
  return point < amounts.size() ? amounts[point] : kNothing;
}

ErrorBars ReadErrorBars(ReadingContext& context, pugi::xml_node node, const SeriesModel& series) {
  ErrorBars bars;
  bars.alongX = schema::Val(node, "errDir", "y") == "x";
  bars.caps = !schema::BooleanVal(node, "noEndCap", false);
  bars.stroke = ReadStroke(context.part, xml::Child(node, "spPr", "ln"), kThinLine);
  const std::string ends = schema::Val(node, "errBarType", "both"),
                    kind = schema::Val(node, "errValType", "fixedVal");
  const double amount = schema::NumberVal(node, "val").value_or(0);
  const std::vector<double>& numbers = bars.alongX ? series.x : series.values;
  const Spread spread = SpreadOf(numbers);
  std::vector<double> plus, minus;
  if (kind == "cust") {
    plus = ReadNumbers(context, xml::Child(node, "plus"));
    minus = ReadNumbers(context, xml::Child(node, "minus"));
  }
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    double up = amount, middle = 0;
    if (kind == "percentage") up = std::abs(numbers[i]) * amount / 100;
    if (kind == "stdErr") up = spread.error;
    if (kind == "stdDev") {
      // Bars of the standard deviation are centred at the mean, and not at the points.
      up = spread.deviation * amount;
      middle = spread.mean - numbers[i];
    }
    double down = up;
    if (kind == "cust") {
      up = CustomAmount(plus, i);
      down = CustomAmount(minus, i);
    }
    const bool hasUp = ends != "minus" && std::isfinite(middle + up);
    const bool hasDown = ends != "plus" && std::isfinite(middle - down);
    bars.from.push_back(hasDown ? middle - down : hasUp ? middle : kNothing);
    bars.to.push_back(hasUp ? middle + up : hasDown ? middle : kNothing);
  }
  return bars;
}

TrendKind KindOf(const std::string& name) {
  if (name == "log") return TrendKind::kLogarithmic;
  if (name == "exp") return TrendKind::kExponential;
  if (name == "power") return TrendKind::kPower;
  if (name == "poly") return TrendKind::kPolynomial;
  return name == "movingAvg" ? TrendKind::kMovingAverage : TrendKind::kLinear;
}

/// Returns the name that Excel gives a trendline without a name of its own.
std::string AutomaticName(const Trendline& line, const std::string& series) {
  const auto kind = [&]() -> std::string {
    switch (line.kind) {
      case TrendKind::kLogarithmic:
        return "Log.";
      case TrendKind::kExponential:
        return "Expon.";
      case TrendKind::kPower:
        return "Power";
      case TrendKind::kPolynomial:
        return "Poly.";
      case TrendKind::kMovingAverage:
        return std::to_string(line.period) + " per. Mov. Avg.";
      case TrendKind::kLinear:
        break;
    }
    return "Linear";
  };
  return kind() + " (" + series + ")";
}

/// Adds the points of a moving average: the mean of each point and the points before it in the period. The
/// mean is NaN if one of these points has no number.
void AddMovingAverage(ReadingContext& context, const std::vector<double>& x, const std::vector<double>& y,
                      Trendline& line) {
  if (line.period >= y.size()) {
    AddOnce(context.notes, "A moving average isn't drawn because its period isn't shorter than its series.");
    return;
  }
  for (std::size_t i = line.period - 1; i < std::min(x.size(), y.size()); ++i) {
    double mean = 0;
    for (std::size_t k = 0; k < line.period; ++k) mean += y[i - k] / static_cast<double>(line.period);
    line.points.push_back({x[i], mean});
  }
}

void ReadLabel(ReadingContext& context, pugi::xml_node node, const TrendCurve& curve, Trendline& line) {
  const auto label = xml::Child(node, "trendlineLbl");
  const auto format = xml::Child(label, "numFmt");
  const std::string code = xml::Attribute(format, "formatCode", "General");
  FormatPointer numbers;
  if (code != "General") numbers = context.Format(code);
  const auto formatted = [&](double number) {
    if (!numbers || !std::isfinite(number)) return EquationNumber(number);
    std::string text;
    numbers->AppendNumber(text, number, context.part.Book().Dates());
    return text;
  };
  std::string text;
  if (schema::BooleanVal(node, "dispEq", false)) text = EquationOf(curve, formatted);
  if (schema::BooleanVal(node, "dispRSqr", false)) {
    text += (text.empty() ? "R² = " : "\nR² = ") + formatted(curve.determination);
  }
  if (text.empty()) return;
  line.label = ReadText(context.part, label ? label : node, xlsx::TextRole::kOther, text);
  line.labelStyle = ReadStyle(context.part, xml::Child(label, "spPr"), {});
  line.labelLayout = ReadLayout(label);
}

/// Returns the length by which a trendline extends beyond the points. The file may contain any number.
double ExtensionOf(pugi::xml_node node, const char* name) {
  const double length = schema::NumberVal(node, name).value_or(0);
  return std::isfinite(length) ? std::max(length, 0.0) : 0;
}

/// Fits the curve of a trendline to the points, and reads how far it extends beyond them, and its label.
void AddCurve(ReadingContext& context, pugi::xml_node node, const std::vector<double>& x,
              const std::vector<double>& y, Trendline& line) {
  constexpr long long kHighestOrder = 6;
  const auto order =
      static_cast<std::size_t>(std::clamp(schema::IntegerVal(node, "order", 2), 1LL, kHighestOrder));
  line.curve = FitTrend(line.kind, order, schema::NumberVal(node, "intercept"), x, y);
  if (!line.curve) {
    AddOnce(context.notes,
            "A trendline isn't drawn because no line of its kind fits the points of its series.");
    return;
  }
  double least = std::numeric_limits<double>::infinity(), greatest = -least;
  for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) {
    if (!std::isfinite(x[i]) || !std::isfinite(y[i])) continue;
    least = std::min(least, x[i]);
    greatest = std::max(greatest, x[i]);
  }
  line.forward = ExtensionOf(node, "forward");
  line.backward = ExtensionOf(node, "backward");
  line.from = least - line.backward;
  line.to = greatest + line.forward;
  ReadLabel(context, node, *line.curve, line);
}

Trendline ReadTrendline(ReadingContext& context, const ChartModel& chart, const GroupModel& group,
                        const SeriesModel& series, pugi::xml_node node) {
  Trendline line;
  line.kind = KindOf(schema::Val(node, "trendlineType", "linear"));
  line.period =
      static_cast<std::size_t>(std::clamp(schema::IntegerVal(node, "period", 2), 2LL, kLongestPeriod));
  line.name = xml::Text(xml::Child(node, "name"));
  if (line.name.empty()) line.name = AutomaticName(line, series.name);
  line.style = ReadStyle(context.part, xml::Child(node, "spPr"), {{}, kThinLine});
  line.style.fill = {};
  const TrendPlaces places = PlacesOf(chart, group, series);
  line.shift = places.shift;
  if (line.kind == TrendKind::kMovingAverage) {
    AddMovingAverage(context, places.x, series.values, line);
  } else {
    AddCurve(context, node, places.x, series.values, line);
  }
  return line;
}

/// Adds slots after the last date of an axis for a trendline that extends beyond it, but none after the last
/// date of Excel.
void ExtendDates(const Trendline& line, xlsx::DateSystem system, AxisModel& axis) {
  DateSlots& dates = *axis.dates;
  if (dates.hasLast) return;
  const double most = static_cast<double>(SlotOf(xlsx::kLastSerial, dates.base, system) - dates.first + 1);
  const double free = axis.crossesBetween ? 0.5 : 0;
  dates.count = std::max(dates.count, std::min(std::ceil(line.to - line.shift - free), most));
}

/// Returns the number of slots by which a trendline begins before the first date of its axis, as far as Excel
/// has dates.
double SlotsBefore(const Trendline& line, xlsx::DateSystem system, const AxisModel& axis) {
  const DateSlots& dates = *axis.dates;
  if (dates.hasFirst) return 0;
  long long least = SlotOf(0, dates.base, system);
  if (SerialOf(least, dates.base, system) < 0) ++least;
  const double most = static_cast<double>(std::max(dates.first - least, 0LL));
  const double free = axis.crossesBetween ? 0.5 : 0;
  return line.curve ? std::clamp(std::ceil(1 - free - (line.from - line.shift)), 0.0, most) : 0;
}

/// Adds slots before the first date of an axis for the trendlines that begin there.
void PrependDates(ChartModel& chart, AxisModel& axis) {
  std::vector<Trendline*> lines;
  for (GroupModel& group : chart.groups) {
    const bool isOnAxis =
        group.category >= 0 && &chart.axes[static_cast<std::size_t>(group.category)] == &axis;
    if (!isOnAxis || group.HasXValues()) continue;
    for (SeriesModel& series : group.series) {
      for (Trendline& line : series.trendlines) lines.push_back(&line);
    }
  }
  double added = 0;
  for (const Trendline* line : lines) added = std::max(added, SlotsBefore(*line, chart.dates, axis));
  axis.dates->first -= static_cast<long long>(added);
  axis.dates->count += added;
  for (double& position : axis.dates->positions) position += added;
  for (Trendline* line : lines) line->shift -= added;
}

/// Adds empty categories or dates after the last one of an axis for a trendline that extends beyond it. Adds
/// a note if the trendline extends too far before the first category.
void ExtendCategories(ReadingContext& context, const GroupModel& group, const Trendline& line,
                      ChartModel& chart) {
  if (group.category < 0 || group.HasXValues() || !line.curve) return;
  AxisModel& axis = chart.axes[static_cast<std::size_t>(group.category)];
  if (axis.IsOfValues()) return;
  if (axis.dates) return ExtendDates(line, chart.dates, axis);
  constexpr double kMostBackward = 0.5;  // categories; the maximum that Excel accepts
  if (line.backward > kMostBackward) {
    AddOnce(context.notes, "The backward forecast of a trendline ends where the category axis begins.");
  }
  constexpr double kMost = 1000;
  const double free = axis.crossesBetween ? 0.5 : 0;
  const double wanted =
      static_cast<double>(group.categories.size()) + std::min(std::ceil(line.forward - free), kMost);
  while (static_cast<double>(axis.categories.size()) < wanted) axis.categories.emplace_back();
}

/// Returns the time that a trendline takes, as the number of points to which a line is fitted in that time.
double CostOf(pugi::xml_node node, const SeriesModel& series) {
  constexpr double kLeast = 200, kAverageOfFit = 0.1;  // the points of a curve; a point of a moving average
  const double period =
      static_cast<double>(std::clamp(schema::IntegerVal(node, "period", 2), 2LL, kLongestPeriod));
  return kLeast + static_cast<double>(series.values.size()) * (1 + kAverageOfFit * period);
}

void ReadUpDownBars(ReadingContext& context, GroupModel& group) {
  const auto node = xml::Child(group.node, "upDownBars");
  if (!node) return;
  const auto styleOf = [&](const char* name, std::uint8_t grey) {
    const ShapeStyle automatic{SolidFill{{grey, grey, grey, 1}}, kThinLine};
    return ReadStyle(context.part, xml::Child(node, name, "spPr"), automatic);
  };
  const auto gap = schema::NumberVal(node, "gapWidth");
  constexpr double kUsualGap = 150, kWidestGap = 500;  // percent
  group.upDownBars = UpDownBars{gap && std::isfinite(*gap) ? std::clamp(*gap, 0.0, kWidestGap) : kUsualGap,
                                styleOf("upBars", 255), styleOf("downBars", 64)};
}

}  // namespace

void ReadAnalysis(ReadingContext& context, ChartModel& chart) {
  double fittedPoints = 0;
  for (GroupModel& group : chart.groups) {
    if (group.family == Family::kLine || group.family == Family::kStock) ReadUpDownBars(context, group);
    if (!group.CanHaveErrorBars()) continue;
    for (SeriesModel& series : group.series) {
      constexpr std::size_t kMostErrorBars = 2;  // one in each direction
      for (const pugi::xml_node& node : xml::Children(series.node, "errBars")) {
        if (!group.HasXValues() && schema::Val(node, "errDir", "y") == "x") {
          AddOnce(context.notes, "Error bars along a category axis aren't drawn.");
        } else if (series.errorBars.size() < kMostErrorBars) {
          series.errorBars.push_back(ReadErrorBars(context, node, series));
        }
      }
      if (!group.CanHaveTrendlines()) continue;
      for (const pugi::xml_node& node : xml::Children(series.node, "trendline")) {
        fittedPoints += CostOf(node, series);
        if (fittedPoints > kMostFittedPoints) {
          AddOnce(context.notes,
                  "The chart has more trendlines through many points than are drawn; the rest is left out.");
          break;
        }
        series.trendlines.push_back(ReadTrendline(context, chart, group, series, node));
        ExtendCategories(context, group, series.trendlines.back(), chart);
      }
    }
  }
  for (AxisModel& axis : chart.axes) {
    if (axis.dates) PrependDates(chart, axis);
  }
}

namespace {

/// Returns true if the axes show a part of a trendline.
bool IsOnAxes(const Trendline& line, const AxisModel& across, const AxisModel& values) {
  const auto isPresent = [&](Point point) { return std::isfinite(point.x) && values.HasPositionOf(point.y); };
  if (!line.curve) {
    const auto bothPresent = [&](Point a, Point b) { return isPresent(a) && isPresent(b); };
    return std::adjacent_find(line.points.begin(), line.points.end(), bothPresent) != line.points.end();
  }
  const xlsx::AxisScale& scale = values.scale;
  const double dust = 1e-9 * (scale.maximum - scale.minimum);  // the amount that rounding may add or remove
  int last = 0;  // the side of the scale of the last point: -1 is below it, 1 is above it
  for (const double x : SamplesOf(line, across)) {
    const double value = line.curve->At(x);
    if (!isPresent({x, value})) {
      last = 0;
      continue;
    }
    const int side = value < scale.minimum - dust ? -1 : value > scale.maximum + dust ? 1 : 0;
    if (side == 0 || side == -last) return true;
    last = side;
  }
  return false;
}

}  // namespace

void FindVisibleTrendlines(ChartModel& chart) {
  for (GroupModel& group : chart.groups) {
    if (group.category < 0 || group.value < 0) continue;
    const AxisModel& across = chart.axes[static_cast<std::size_t>(group.category)];
    const AxisModel& values = chart.axes[static_cast<std::size_t>(group.value)];
    for (SeriesModel& series : group.series) {
      for (Trendline& line : series.trendlines) line.isVisible = IsOnAxes(line, across, values);
    }
  }
}

namespace {

/// Adds the extensions of a trendline, as far as the axis of X values shows them.
void AddExtensions(const Trendline& line, const AxisModel* axis, bool isX, xlsx::DataExtent& extent) {
  if (!line.curve) return;
  const bool reachesZero = line.curve->NeedsPositiveX() && !(line.from > 0);
  const auto seen = isX ? std::pair(line.from, line.to) : SeenPart(line, axis).value_or(std::pair(0.0, 0.0));
  if (!(seen.second > seen.first)) return;
  const auto add = [&](double x) { extent.Add(isX ? x : line.curve->At(x)); };
  if (line.backward > 0 && !reachesZero) add(seen.first);
  if (line.forward > 0) add(seen.second);
}

}  // namespace

void AddAnalysisExtent(const ChartModel& chart, const GroupModel& group, bool isX, xlsx::DataExtent& extent) {
  const AxisModel* axis =
      group.category < 0 ? nullptr : &chart.axes[static_cast<std::size_t>(group.category)];
  for (const SeriesModel& series : group.series) {
    const std::vector<double>& numbers = isX ? series.x : series.values;
    for (const ErrorBars& bars : series.errorBars) {
      if (bars.alongX != isX || group.IsStacked()) continue;
      for (std::size_t i = 0; i < std::min(numbers.size(), bars.from.size()); ++i) {
        extent.Add(numbers[i] + bars.from[i]);
        extent.Add(numbers[i] + bars.to[i]);
      }
    }
    for (const Trendline& line : series.trendlines) AddExtensions(line, axis, isX, extent);
  }
}

}  // namespace plotsmith::render
