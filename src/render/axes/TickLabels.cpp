#include "render/axes/TickLabels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "render/axes/CategoryLevels.h"
#include "render/axes/DateAxis.h"
#include "render/model/AxisScaling.h"
#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

constexpr double kGapEms = 0.3;        // between neighbouring horizontal labels
constexpr double kLineSpacing = 1.15;  // distance between rotated or wrapped labels, in line heights
constexpr double kUnitSpacing = 1.25;  // distance between labels along a vertical value axis, in line heights
constexpr double kSlanted = -45, kUpwards = -90;
constexpr double kShortEms = 2.6;            // Labels up to this width are skipped rather than rotated.
constexpr std::size_t kMostMeasured = 2000;  // approximate number of labels whose widths are measured

struct Sizes {
  double widest = 0, widestWord = 0, lineHeight = 0;
};

/// Returns true if no line can break inside of a text, as in numbers and most categories.
bool IsOneWord(std::string_view text) {
  return text.find('\n') == text.npos && runtime::WordEnd(text, 0) == text.size();
}

Sizes Measure(const std::vector<std::string>& texts, const TextStyle& style, const TextMeasure& measure) {
  Sizes sizes;
  sizes.lineHeight = measure.Measure("0", style.font).Height();
  const std::size_t step = std::max<std::size_t>(texts.size() / kMostMeasured, 1);
  for (std::size_t i = 0; i < texts.size(); i += step) {
    const std::string& text = texts[i];
    if (IsOneWord(text) && !style.stacked) {
      const double width = measure.Measure(text, style.font).width;
      sizes.widestWord = std::max(sizes.widestWord, width);
      sizes.widest = std::max(sizes.widest, width);
      continue;
    }
    sizes.widestWord = std::max(sizes.widestWord, WidestWord(text, style.font, measure));
    for (const TextLine& line : LayOut(text, style, measure).lines)
      sizes.widest = std::max(sizes.widest, line.width);
  }
  return sizes;
}

/// How labels are laid out: their rotation in degrees, the width at which they wrap in points, and the number
/// of positions from one label to the next.
struct Setting {
  double rotation = 0;
  double wrap = kUnlimited;
  double skip = 1;
};

/// Returns the distance that rotated labels need along the axis.
double NeededAlong(const Sizes& sizes, double rotation, double emGap) {
  const double sine = std::abs(std::sin(rotation * kRadian));
  if (sine < 0.05) return sizes.widest + emGap;
  return std::min(sizes.lineHeight * kLineSpacing / sine,
                  sizes.widest * std::abs(std::cos(rotation * kRadian)) + sizes.lineHeight * sine + emGap);
}

double SkipFor(double needed, double slot) {
  return std::max(std::ceil(needed / std::max(slot, 1e-6) - 1e-9), 1.0);
}

/// Returns the smallest multiple of the skip in the file at which labels don't touch.
double MultipleFor(double given, double needed, double slot) {
  given = std::max(given, 1.0);
  return given * SkipFor(needed, slot * given);
}

Setting SettingForFlat(const AxisModel& axis, const Sizes& sizes, double slot, double depth) {
  const double gap = kGapEms * axis.text.font.size;
  const double given = static_cast<double>(axis.labelSkip);
  const bool skips = axis.labelSkip == 0;
  const double room = slot * std::max(given, 1.0);
  if (axis.text.rotation) {
    const double rotation = *axis.text.rotation;
    const bool flat = std::abs(std::sin(rotation * kRadian)) < 0.05;
    const bool wraps = flat && !axis.IsOfValues() && sizes.widestWord + gap <= room;
    if (wraps) return {rotation, room - gap, std::max(given, 1.0)};
    return {rotation, kUnlimited, MultipleFor(given, NeededAlong(sizes, rotation, gap), slot)};
  }
  if (sizes.widest + gap <= room) return {0, kUnlimited, std::max(given, 1.0)};
  if (!axis.IsOfValues() && sizes.widestWord + gap <= room) {
    const double lines = std::ceil(sizes.widest / std::max(room - gap, 1.0));
    if (lines * sizes.lineHeight <= depth) return {0, room - gap, std::max(given, 1.0)};
  }
  const bool isShort = sizes.widest <= kShortEms * axis.text.font.size;
  if (isShort && skips) return {0, kUnlimited, SkipFor(sizes.widest + gap, slot)};
  for (const double rotation : {kSlanted, kUpwards}) {
    if (NeededAlong(sizes, rotation, gap) <= room) return {rotation, kUnlimited, std::max(given, 1.0)};
  }
  return {kUpwards, kUnlimited, MultipleFor(given, sizes.lineHeight * kLineSpacing, slot)};
}

/// Returns the height of the highest label if lines break at a width.
double TallestWrapped(const std::vector<std::string>& texts, const TextStyle& style, const Sizes& sizes,
                      double wrap, const TextMeasure& measure) {
  double tallest = 0;
  const std::size_t step = std::max<std::size_t>(texts.size() / kMostMeasured, 1);
  for (std::size_t i = 0; i < texts.size(); i += step) {
    if (!texts[i].empty() && IsOneWord(texts[i]) && !style.stacked && sizes.widestWord <= wrap) {
      tallest = std::max(tallest, sizes.lineHeight);
      continue;
    }
    tallest = std::max(tallest, LayOut(texts[i], style, measure, wrap).height);
  }
  return tallest;
}

Setting SettingForUpright(const AxisModel& axis, const std::vector<std::string>& texts, const Sizes& sizes,
                          double slot, double depth, const TextMeasure& measure) {
  const double rotation = axis.text.rotation.value_or(0);
  Setting setting{rotation, kUnlimited, std::max(static_cast<double>(axis.labelSkip), 1.0)};
  const double turned = std::abs(std::sin(rotation * kRadian));
  if (turned < 0.05 && !axis.IsOfValues()) setting.wrap = depth;  // breaks a longer word too
  const double needed = turned < 0.05 ? TallestWrapped(texts, axis.text, sizes, setting.wrap, measure)
                                      : NeededAlong(sizes, 90 - std::abs(rotation), 0);
  setting.skip = MultipleFor(setting.skip, needed, slot);
  return setting;
}

}  // namespace

void Shorten(TextBlock& block, double most, const TextMeasure& measure) {
  if (block.width <= most || block.lines.size() != 1 || block.lines[0].runs.size() != 1) return;
  TextRun run = block.lines[0].runs[0];
  constexpr const char* kDots = "...";
  if (measure.Measure(kDots, run.font).width > most) {
    block = {};
    return;
  }
  std::size_t low = 0, high = run.text.size();
  while (low < high) {
    const std::size_t middle = (low + high + 1) / 2;
    if (measure.Measure(run.text.substr(0, middle) + kDots, run.font).width <= most) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  low = runtime::CharacterStart(run.text, low);
  const TextStyle style{run.font, run.color, block.rotation, false};
  block = LayOut(run.text.substr(0, low) + kDots, style, measure);
}

namespace {

/// The texts along an axis with their positions, which are values, or slots from 0.
struct AxisTexts {
  std::vector<std::string> texts;
  std::vector<double> places;

  void Add(std::string text, double place) {
    texts.push_back(std::move(text));
    places.push_back(place);
  }
};

AxisTexts TextsAlong(const AxisModel& axis, xlsx::DateSystem dates) {
  AxisTexts along;
  if (axis.IsOfValues()) {
    for (Tick& tick : MajorTicks(axis, dates)) along.Add(std::move(tick.label), tick.value);
  } else if (axis.dates) {
    for (DateTick& tick : DateTicks(axis, dates)) along.Add(std::move(tick.label), tick.slot);
  } else {
    for (const std::string& category : axis.categories) {
      along.Add(category, static_cast<double>(along.places.size()));
    }
  }
  return along;
}

/// Returns the shortest distance from one text to the next, in points. The distances differ if slots are days
/// and steps are months.
double NarrowestSlot(const AxisModel& axis, const std::vector<double>& places, double length) {
  const double count = static_cast<double>(places.size());
  const bool onTicks = axis.IsOfValues() || !axis.crossesBetween;
  double slot = length / std::max(onTicks ? count - 1 : count, 1.0);
  for (std::size_t i = 1; axis.dates && i < places.size(); ++i) {
    slot = std::min(slot, length * (places[i] - places[i - 1]) / std::max(axis.dates->count, 1.0));
  }
  return slot;
}

}  // namespace

TickLabels LayOutTickLabels(const AxisModel& axis, double length, double depth, xlsx::DateSystem dates,
                            const TextMeasure& measure) {
  TickLabels result;
  if (axis.hidden || axis.tickLabels == "none" || axis.kind == AxisKind::kSeries) return result;
  const auto [texts, places] = TextsAlong(axis, dates);
  if (texts.empty()) return result;
  const Sizes sizes = Measure(texts, axis.text, measure);
  const double slot = NarrowestSlot(axis, places, length);
  const Setting setting = axis.IsUpright() ? SettingForUpright(axis, texts, sizes, slot, depth, measure)
                                           : SettingForFlat(axis, sizes, slot, depth);
  result.rotation = setting.rotation;
  TextStyle style = axis.text;
  style.rotation = setting.rotation;
  const auto skip = static_cast<std::size_t>(std::max(setting.skip, 1.0));
  for (std::size_t i = 0; i < texts.size(); i += skip) {
    TickLabel label{static_cast<int>(i + 1), places[i], !axis.IsOfValues(),
                    LayOut(texts[i], style, measure, setting.wrap)};
    if (setting.rotation != 0 && !axis.IsUpright()) {
      const double sine = std::abs(std::sin(setting.rotation * kRadian));
      if (sine > 0.05) Shorten(label.block, std::max(depth / sine, 3 * sizes.lineHeight), measure);
    }
    const double across = axis.IsUpright() ? label.block.TurnedWidth() : label.block.TurnedHeight();
    result.depth = std::max(result.depth, across);
    result.labels.push_back(std::move(label));
  }
  AddOuterLevels(axis, length, measure, result);
  return result;
}

void FitMajorUnit(AxisModel& axis, double length, xlsx::DateSystem dates, const TextMeasure& measure) {
  if (!axis.IsOfValues() || axis.hidden || axis.logBase || axis.settings.majorUnit ||
      axis.tickLabels == "none")
    return;
  const double lineHeight = measure.Measure("0", axis.text.font).Height();
  for (int tries = 0; tries < 12; ++tries) {
    const auto ticks = MajorTicks(axis, dates);
    if (ticks.size() < 3) return;
    double needed = lineHeight * kUnitSpacing;
    if (!axis.IsUpright()) {
      double widest = 0;
      for (const Tick& tick : ticks)
        widest = std::max(widest, measure.Measure(tick.label, axis.text.font).width);
      needed = widest + 2 * kGapEms * axis.text.font.size;
    }
    if (length / static_cast<double>(ticks.size() - 1) >= needed) return;
    CoarsenScale(axis);
  }
}

}  // namespace plotsmith::render
