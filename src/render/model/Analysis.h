#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "render/Drawing.h"

/// Error bars and trendlines, and the curves that fit the points of a series.
namespace plotsmith::render {

/// Error bars of a series (c:errBars) in one direction.
struct ErrorBars {
  /// Whether the bars are parallel to the axis of X values. Otherwise they are parallel to the value axis.
  bool alongX = false;
  /// Whether the ends of the bars have caps.
  bool caps = true;
  /// The ends of the bar of each point, as distances from the value of the point. NaN is a point without a
  /// bar.
  std::vector<double> from, to;
  /// The line of the bars and of their caps.
  Stroke stroke;
};

/// The type of a trendline (ST_TrendlineType).
enum class TrendKind : std::uint8_t {
  kLinear,
  kLogarithmic,
  kExponential,
  kPower,
  kPolynomial,
  kMovingAverage
};

/// A curve that is fitted to points by least squares. Every kind of curve is a polynomial of x or of its
/// logarithm. The polynomial gives the value or its logarithm.
class TrendCurve {
 public:
  /// Makes a curve. `coefficients` are those of the powers of (u - center) / scale, from the power 0 on,
  /// where u is x or its logarithm.
  TrendCurve(TrendKind kind, std::vector<double> coefficients, double center, double scale)
      : kind_(kind), coefficients_(std::move(coefficients)), center_(center), scale_(scale) {}

  /// Returns the value at an X value. The result isn't finite if the curve has no value there.
  double At(double x) const;
  /// The kind of the curve.
  TrendKind Kind() const { return kind_; }
  /// Returns true if the curve has values only for positive X values.
  bool NeedsPositiveX() const { return kind_ == TrendKind::kLogarithmic || kind_ == TrendKind::kPower; }
  /// Returns the coefficients of u^0, u^1 and so on in the polynomial, where u is x or its logarithm.
  std::vector<double> Factors() const;
  /// Returns the value of the polynomial at `u`, which is x or its logarithm. The result is the value of the
  /// curve or the logarithm of that value.
  double TermAt(double u) const;

  /// The share of the variance that the curve explains (R squared).
  double determination = 0;

 private:
  TrendKind kind_;
  std::vector<double> coefficients_;
  double center_, scale_;
};

/// Fits a curve to points. Points with a NaN are left out. `order` is the order of a polynomial, from 1 to 6.
/// `intercept` is the value at zero, if it is fixed. Returns nothing if there are too few points, if all X
/// values are the same, if the curve needs a logarithm that one of the points doesn't have, or if `kind` is a
/// moving average.
std::optional<TrendCurve> FitTrend(TrendKind kind, std::size_t order, std::optional<double> intercept,
                                   const std::vector<double>& x, const std::vector<double>& y);

/// Returns the equation of a curve, as Excel writes it. Exponents are superscript digits, or follow a caret.
/// `format` formats the numbers.
std::string EquationOf(const TrendCurve& curve, const std::function<std::string(double)>& format);
/// Returns a number as Excel shows it in an equation, with five digits or with an exponent.
std::string EquationNumber(double number);

}  // namespace plotsmith::render
