#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numeric>

#include "render/model/Analysis.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

bool HasLogarithmOfX(TrendKind kind) { return kind == TrendKind::kLogarithmic || kind == TrendKind::kPower; }
bool HasLogarithmOfY(TrendKind kind) { return kind == TrendKind::kExponential || kind == TrendKind::kPower; }

/// Returns true if all points have the logarithms that a curve needs. If one of them doesn't, Excel doesn't
/// offer the curve.
bool HaveLogarithms(TrendKind kind, const std::vector<double>& x, const std::vector<double>& y) {
  for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) {
    if (!std::isfinite(x[i]) || !std::isfinite(y[i])) continue;
    if (HasLogarithmOfX(kind) && x[i] <= 0) return false;
    if (HasLogarithmOfY(kind) && y[i] <= 0) return false;
  }
  return true;
}

/// The coordinates of points, or their logarithms if the curve needs them.
struct Terms {
  std::vector<double> u, v;
};

Terms TermsOf(TrendKind kind, const std::vector<double>& x, const std::vector<double>& y) {
  Terms terms;
  for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) {
    const double u = HasLogarithmOfX(kind) ? std::log(x[i]) : x[i];
    const double v = HasLogarithmOfY(kind) ? std::log(y[i]) : y[i];
    if (!std::isfinite(u) || !std::isfinite(v)) continue;
    terms.u.push_back(u);
    terms.v.push_back(v);
  }
  return terms;
}

using Row = std::vector<long double>;

/// Solves a system of linear equations, each with its right side at the end. Returns nothing if there is no
/// unique solution.
std::optional<Row> Solve(std::vector<Row> rows) {
  const std::size_t count = rows.size();
  for (std::size_t column = 0; column < count; ++column) {
    std::size_t pivot = column;
    for (std::size_t i = column; i < count; ++i) {
      if (std::abs(rows[i][column]) > std::abs(rows[pivot][column])) pivot = i;
    }
    constexpr long double kNothing = 1e-15L;
    if (!(std::abs(rows[pivot][column]) > kNothing)) return std::nullopt;
    std::swap(rows[column], rows[pivot]);
    for (std::size_t i = 0; i < count; ++i) {
      if (i == column) continue;
      const long double factor = rows[i][column] / rows[column][column];
      for (std::size_t k = column; k <= count; ++k) rows[i][k] -= factor * rows[column][k];
    }
  }
  Row solution;
  for (std::size_t i = 0; i < count; ++i) solution.push_back(rows[i][count] / rows[i][i]);
  return solution;
}

/// Returns the normal equations of a polynomial with powers from `least` to `most` through points near zero.
std::vector<Row> NormalEquations(const std::vector<double>& t, const std::vector<double>& v,
                                 std::size_t least, std::size_t most) {
  const std::size_t count = most - least + 1;
  std::vector<Row> rows(count, Row(count + 1));
  for (std::size_t i = 0; i < t.size(); ++i) {
    std::array<long double, 7> powers{};
    long double power = least == 0 ? 1 : t[i];
    for (std::size_t k = 0; k < count; ++k, power *= t[i]) powers[k] = power;
    for (std::size_t a = 0; a < count; ++a) {
      for (std::size_t b = 0; b < count; ++b) rows[a][b] += powers[a] * powers[b];
      rows[a][count] += powers[a] * v[i];
    }
  }
  for (Row& row : rows) {
    for (long double& number : row) number /= static_cast<long double>(t.size());
  }
  return rows;
}

double DeterminationOf(const TrendCurve& curve, const Terms& terms) {
  const double count = static_cast<double>(terms.v.size());
  double mean = 0, rest = 0, all = 0, most = 0;
  for (const double v : terms.v) most = std::max(most, std::abs(v));
  if (!(most > 0)) return 1;
  for (const double v : terms.v) mean += v / most / count;
  for (std::size_t i = 0; i < terms.v.size(); ++i) {
    const double v = terms.v[i] / most, error = v - curve.TermAt(terms.u[i]) / most;
    rest += error * error;
    all += (v - mean) * (v - mean);
  }
  return all > 0 ? 1 - rest / all : 1;
}

}  // namespace

double TrendCurve::TermAt(double u) const {
  const double t = (u - center_) / scale_;
  double value = 0;
  for (std::size_t k = coefficients_.size(); k-- > 0;) value = value * t + coefficients_[k];
  return value;
}

double TrendCurve::At(double x) const {
  const double value = TermAt(HasLogarithmOfX(kind_) ? std::log(x) : x);
  return HasLogarithmOfY(kind_) ? std::exp(value) : value;
}

std::vector<double> TrendCurve::Factors() const {
  // This is Horner's method: from the highest power on, the polynomial is multiplied by (u - center) / scale.
  std::vector<double> factors;
  for (std::size_t k = coefficients_.size(); k-- > 0;) {
    std::vector<double> next(factors.size() + 1);
    for (std::size_t i = 0; i < factors.size(); ++i) {
      next[i + 1] += factors[i] / scale_;
      next[i] -= factors[i] / scale_ * center_;
    }
    next[0] += coefficients_[k];
    factors = std::move(next);
  }
  return factors;
}

std::optional<TrendCurve> FitTrend(TrendKind kind, std::size_t order, std::optional<double> intercept,
                                   const std::vector<double>& x, const std::vector<double>& y) {
  if (kind == TrendKind::kMovingAverage || !HaveLogarithms(kind, x, y)) return std::nullopt;
  constexpr std::size_t kHighestOrder = 6;
  order = kind == TrendKind::kPolynomial ? std::clamp<std::size_t>(order, 1, kHighestOrder) : 1;
  if (HasLogarithmOfX(kind)) intercept.reset();
  if (intercept && HasLogarithmOfY(kind)) *intercept = std::log(*intercept);
  if (intercept && !std::isfinite(*intercept)) return std::nullopt;
  const Terms terms = TermsOf(kind, x, y);
  if (terms.u.size() < order + (intercept ? 0 : 1) || terms.u.empty()) return std::nullopt;
  const auto [least, most] = std::minmax_element(terms.u.begin(), terms.u.end());
  // With numbers from -1 to 1, the equations can be solved accurately enough.
  const double center = intercept ? 0 : *least / 2 + *most / 2;
  const double scale = intercept ? std::max(std::abs(*least), std::abs(*most)) : *most / 2 - *least / 2;
  if (!(scale > 0)) return std::nullopt;
  double highest = intercept ? std::abs(*intercept) : 0;
  for (const double v : terms.v) highest = std::max(highest, std::abs(v));
  if (!(highest > 0)) highest = 1;
  std::vector<double> t, v;
  for (std::size_t i = 0; i < terms.u.size(); ++i) {
    t.push_back((terms.u[i] - center) / scale);
    v.push_back(terms.v[i] / highest - intercept.value_or(0) / highest);
  }
  const auto solution = Solve(NormalEquations(t, v, intercept ? 1 : 0, order));
  if (!solution) return std::nullopt;
  std::vector<double> coefficients;
  if (intercept) coefficients.push_back(*intercept);
  for (const long double number : *solution) coefficients.push_back(static_cast<double>(number) * highest);
  TrendCurve curve(kind, std::move(coefficients), center, scale);
  curve.determination = DeterminationOf(curve, terms);
  return curve;
}

std::string EquationNumber(double number) {
  constexpr double kLeast = 1e-4, kMost = 999'999.5;  // Other numbers are written with an exponent.
  constexpr int kDigits = 5;
  if (!std::isfinite(number)) return "?";
  const double size = std::abs(number);
  if (size == 0) return "0";
  int power = static_cast<int>(std::floor(std::log10(size)));
  if (size < kLeast || size >= kMost) {
    double leading = std::round(number / std::pow(10.0, power));
    if (std::abs(leading) >= 10) {
      leading /= 10;
      ++power;
    }
    const std::string digits = std::to_string(std::abs(power));
    return xlsx::xml::Number(leading) + "E" + (power < 0 ? "-" : "+") + (digits.size() < 2 ? "0" : "") +
           digits;
  }
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                 std::chars_format::fixed, std::max(kDigits - 1 - std::max(power, 0), 0));
  std::string text(digits.data(), end.ptr);
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
  }
  return text;
}

namespace {

/// The text of a sum with the signs of its terms. A term whose factor is zero is left out.
class SumText {
 public:
  explicit SumText(const std::function<std::string(double)>& format) : format_(format) {}

  void Add(double factor, const std::string& behind) {
    if (factor == 0) return;
    const char* sign = text_.empty() ? (factor < 0 ? "-" : "") : factor < 0 ? " - " : " + ";
    std::string size = format_(std::abs(factor));
    if (size == "1" && behind.starts_with("x")) size.clear();
    if (text_.empty() && !size.empty()) {
      text_ = format_(factor) + behind;
    } else {
      text_ += sign + size + behind;
    }
  }
  std::string Text() const { return text_.empty() ? format_(0) : text_; }

 private:
  const std::function<std::string(double)>& format_;
  std::string text_;
};

}  // namespace

std::string EquationOf(const TrendCurve& curve, const std::function<std::string(double)>& format) {
  constexpr std::array<const char*, 7> kPowers = {"", "x", "x²", "x³", "x⁴", "x⁵", "x⁶"};
  const std::vector<double> factors = curve.Factors();
  SumText sum(format);
  switch (curve.Kind()) {
    case TrendKind::kExponential:
      return "y = " + format(std::exp(factors[0])) + "e^" + format(factors[1]) + "x";
    case TrendKind::kPower:
      return "y = " + format(std::exp(factors[0])) + "x^" + format(factors[1]);
    case TrendKind::kLogarithmic:
      sum.Add(factors[1], "ln(x)");
      sum.Add(factors[0], "");
      break;
    default:
      for (std::size_t k = std::min(factors.size(), kPowers.size()); k-- > 0;)
        sum.Add(factors[k], kPowers[k]);
      break;
  }
  return "y = " + sum.Text();
}

}  // namespace plotsmith::render
