#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace plotsmith::xlsx {

/// A number that isn't negative, with Excel's precision of 15 significant decimal digits.
class Decimal {
 public:
  /// Converts a number that isn't negative.
  explicit Decimal(double magnitude);

  /// Returns true if the number is zero.
  bool IsZero() const { return count_ == 0; }
  /// Multiplies by a power of ten.
  void Scale(int power) { point_ += power; }
  /// Rounds to a number of decimals; halves are rounded up.
  void Round(int decimals);

  /// The digit at a power of ten.
  char Digit(int power) const {
    const int index = point_ - 1 - power;
    return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
  }
  /// The power of ten of the first digit that isn't zero. Not defined for zero.
  int Highest() const { return point_ - 1; }
  /// The power of ten of the last digit that isn't zero. Not defined for zero.
  int Lowest() const { return point_ - count_; }
  /// Number of digits before the decimal point.
  int IntegerDigits() const { return IsZero() || point_ < 0 ? 0 : point_; }

  /// Appends all digits, without an exponent.
  void AppendTo(std::string& out) const;

 private:
  std::array<char, 15> digits_;
  int count_ = 0;
  int point_ = 0;  // the number is 0.d1d2d3... times ten to this power
};

/// Writes the integer part of a number into its placeholders, from left to right. Digits without a
/// placeholder are written with the first one.
class IntegerWriter {
 public:
  /// Makes a writer. `digits` is the number of digits of the integer part; `grouping` inserts thousands
  /// separators.
  IntegerWriter(std::string& out, const Decimal& number, int digits, int placeholders, bool grouping)
      : out_(out), number_(number), digits_(digits), power_(placeholders - 1), grouping_(grouping) {}

  /// Writes the digits of the next placeholder ("0", "#" or "?").
  void Next(char placeholder);

 private:
  void Append(char digit, int power);

  std::string& out_;
  const Decimal& number_;
  int digits_;  // the number of digits still to be written
  int power_;   // the power of ten of the next placeholder
  bool grouping_;
};

}  // namespace plotsmith::xlsx
