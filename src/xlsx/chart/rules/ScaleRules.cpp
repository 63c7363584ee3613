#include "xlsx/chart/rules/ScaleRules.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::xlsx {
namespace {

constexpr double kHeadroom = 0.05;        // of the data's range, above its largest value
constexpr double kFarFromZero = 1.0 / 6;  // of the largest value; axes of smaller ranges don't begin at zero
constexpr double kFootroom = 0.5;         // of the range, below the smallest value of such an axis
constexpr double kMostSteps = 10;         // major units on an axis of the usual length
constexpr double kDust = 1e-9;            // of a unit: a value this close to a step counts as that step

/// The smallest of 1, 2, 5, 10 and so on that divides a range into at most the allowed number of steps.
double UnitFor(double range) {
  const double least = range / kMostSteps;
  const double power = std::pow(10, std::floor(std::log10(least)));
  if (!(power > 0) || !std::isfinite(power)) return 1;  // no range, or beyond the range of double
  for (const double step : {1.0, 2.0, 5.0}) {
    if (step * power >= least * (1 - kDust)) return step * power;
  }
  return 10 * power;
}

double StepUp(double value, double unit) { return std::ceil(value / unit - kDust) * unit; }
double StepDown(double value, double unit) { return std::floor(value / unit + kDust) * unit; }

AxisScale LogScale(double least, double greatest, const AxisSettings& settings) {
  const double base = *settings.logBase > 1 ? *settings.logBase : 10;
  const auto power = [&](double exponent) { return std::pow(base, exponent); };
  const auto exponent = [&](double value) { return std::log(value) / std::log(base); };
  AxisScale scale{1, base, base};
  if (least > 0) scale.minimum = power(std::floor(exponent(least) + kDust));
  if (greatest > 0) scale.maximum = power(std::ceil(exponent(greatest) - kDust));
  if (scale.maximum <= scale.minimum) scale.maximum = scale.minimum * base;
  return {settings.minimum.value_or(scale.minimum), settings.maximum.value_or(scale.maximum),
          settings.majorUnit.value_or(scale.majorUnit)};
}

/// The limits before they are rounded outwards to a multiple of the major unit.
struct RawLimits {
  double minimum, maximum;
};

RawLimits RawLimitsFor(double least, double greatest, bool headroom) {
  const double range = greatest - least;
  const double room = headroom ? range * kHeadroom : 0;
  if (least >= 0) {
    const bool far = range < greatest * kFarFromZero;
    return {far ? least - range * kFootroom : 0, greatest + room};
  }
  if (greatest <= 0) {
    const RawLimits mirrored = RawLimitsFor(-greatest, -least, headroom);
    return {-mirrored.maximum, -mirrored.minimum};
  }
  return {least - room, greatest + room};
}

}  // namespace

AxisScale ScaleAxis(double least, double greatest, const AxisSettings& settings) {
  if (!std::isfinite(least) || !std::isfinite(greatest) || least > greatest) return ScaleEmptyAxis(settings);
  if (settings.logBase) return LogScale(least, greatest, settings);
  // For a single value, the range begins at zero.
  if (least == greatest && least > 0) least = 0;
  if (least == greatest && greatest < 0) greatest = 0;
  if (least == greatest) return ScaleEmptyAxis(settings);
  if (settings.minimum) least = std::min(*settings.minimum, greatest);
  if (settings.maximum) greatest = std::max(*settings.maximum, least);
  RawLimits limits = RawLimitsFor(least, greatest, settings.headroom);
  if (settings.minimum) limits.minimum = *settings.minimum;
  if (settings.maximum) limits.maximum = *settings.maximum;
  const double unit = settings.majorUnit.value_or(UnitFor(limits.maximum - limits.minimum));
  const AxisScale scale{settings.minimum.value_or(StepDown(limits.minimum, unit)),
                        settings.maximum.value_or(StepUp(limits.maximum, unit)), unit};
  const bool sound = std::isfinite(scale.minimum) && std::isfinite(scale.maximum);
  return sound ? scale : AxisScale{least, greatest, unit};
}

AxisScale ScaleEmptyAxis(const AxisSettings& settings) {
  const AxisScale plain;
  const double minimum = settings.minimum.value_or(std::min(plain.minimum, settings.maximum.value_or(0)));
  const double maximum = settings.maximum.value_or(std::max(plain.maximum, minimum + 1));
  return {minimum, maximum, settings.majorUnit.value_or(UnitFor(maximum - minimum))};
}

}  // namespace plotsmith::xlsx
