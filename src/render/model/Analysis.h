#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "render/Drawing.h"

/// What a chart says about the values of its series beside drawing them: error bars and trendlines.
namespace plotsmith::render {

/// Error bars of a series (c:errBars) in one direction.
struct ErrorBars {
  bool alongX = false;  ///< along the axis of X values; else along that of values
  bool caps = true;
  /// The ends of each point's bar, as distances from the point's number. NaN where a point has no bar.
  std::vector<double> from, to;
  Stroke stroke;
};

enum class TrendKind : std::uint8_t {
  kLinear,
  kLogarithmic,
  kExponential,
  kPower,
  kPolynomial,
  kMovingAverage
};

/// A line through points, found by least squares. In logarithmic terms, it is a polynomial.
class TrendCurve {
 public:
  /// A curve with coefficients of powers of (u - center) / scale, where u is x or its logarithm.
  TrendCurve(TrendKind kind, std::vector<double> coefficients, double center, double scale)
      : kind_(kind), coefficients_(std::move(coefficients)), center_(center), scale_(scale) {}

  /// The value at a place. It is not finite where the curve has none.
  double At(double x) const;
  TrendKind Kind() const { return kind_; }
  /// Whether the curve has values only above an x of zero.
  bool NeedsPositiveX() const { return kind_ == TrendKind::kLogarithmic || kind_ == TrendKind::kPower; }
  /// Factors of x^0, x^1, ... of the polynomial in logarithmic terms.
  std::vector<double> Factors() const;
  /// The value of the polynomial; the same as the curve's value or its logarithm.
  double TermAt(double u) const;

  double determination = 0;  ///< the share of the variance that the curve explains (R squared)

 private:
  TrendKind kind_;
  std::vector<double> coefficients_;
  double center_, scale_;
};

/// Fits a curve to points; those that are no numbers are left out. `order` is that of a polynomial, from 1 to
/// 6. `intercept` is the value at zero. Nothing if there are too few points, if they don't differ in x, or if
/// one of them has no logarithm where the curve needs it. A moving average is no curve.
std::optional<TrendCurve> FitTrend(TrendKind kind, std::size_t order, std::optional<double> intercept,
                                   const std::vector<double>& x, const std::vector<double>& y);

/// The equation of a curve, as Excel writes it. Powers are written with raised digits, or behind a caret.
/// `format` writes its numbers.
std::string EquationOf(const TrendCurve& curve, const std::function<std::string(double)>& format);
/// A number as Excel shows it in an equation: five digits, or an exponent.
std::string EquationNumber(double number);

}  // namespace plotsmith::render
