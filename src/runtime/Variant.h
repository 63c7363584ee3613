#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The run-time library of Visual Basic, Excel's macro language ("the language" in this reference): values,
/// conversions, errors, object references, collections and strings.
namespace plotsmith::runtime {

/// A value of any type, with the language's conversions between types. A conversion raises error 13 if the
/// value can't be converted, error 94 if the value is Null, and error 6 if the result is out of range.
class Variant {
 public:
  /// The value of an uninitialized variable and of a blank cell.
  struct Empty {
    bool operator==(const Empty&) const = default;  ///< Always true.
  };
  /// No definite value, such as the font name of a text in several fonts.
  struct Null {
    bool operator==(const Null&) const =
        default;  ///< Always true, unlike a comparison with Null in the language.
  };
  /// A date as a day serial in the language's count: 2 is 1 January 1900. The fraction is the time of day,
  /// and it has no sign: for a negative serial the time is the absolute value of the fraction.
  struct Date {
    double serial;                                 ///< Days, with the time of day as a fraction.
    bool operator==(const Date&) const = default;  ///< Compares the serials.
  };
  /// An error value of a cell, by Excel's number for it; 2007 is #DIV/0!.
  struct Error {
    int number;                                     ///< At least 2000.
    bool operator==(const Error&) const = default;  ///< Compares the numbers.
  };

  /// Makes an Empty value.
  Variant() = default;

  /// Makes a value of exactly the argument's type. Strings are copied.
  ///@{
  Variant(Null value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(Error value) : value_(value) {}
  Variant(bool value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  ///@}

  /// Returns true if the value is of that type. Empty, Null and an empty string are three different values.
  ///@{
  bool IsEmpty() const { return Is<Empty>(); }
  bool IsNull() const { return Is<Null>(); }
  ///@}

  /// Returns true if the value is of type T: Empty, Null, bool, std::int32_t, double, Date, Error or
  /// std::string.
  template <class T>
  bool Is() const {
    return std::holds_alternative<T>(value_);
  }
  /// Returns a pointer to the value if it is of type T, or a null pointer. The pointer is valid until another
  /// value is assigned.
  template <class T>
  const T* If() const {
    return std::get_if<T>(&value_);
  }

  /// Compares type and value: 1 as a std::int32_t differs from 1 as a double.
  bool operator==(const Variant&) const = default;

 private:
  std::variant<Empty, Null, bool, std::int32_t, double, Date, Error, std::string> value_;
};

/// A constant for Null.
inline const Variant kNull = Variant::Null{};

/// Converts to a string: Empty to "", a Boolean to "True" or "False", a number as NumberText does. Raises
/// error 13 for an error value.
std::string CStr(const Variant& value);
/// Converts to a number: Empty to 0, True to -1, a string as ParseNumber does.
double CDbl(const Variant& value);
/// Converts to a 32-bit integer. Halves are rounded to the even neighbour.
std::int32_t CLng(const Variant& value);
/// Converts to a Boolean. A number is true unless it is 0; a string must be "True", "False" or a number.
bool CBool(const Variant& value);

/// Returns the number that the whole text denotes, or nothing. Accepts the forms that CDbl accepts:
/// surrounding blanks, a sign on either side, parentheses for a negative number, a currency sign, thousands
/// separators, an exponent, and the prefixes &H and &O. The result doesn't depend on the locale.
std::optional<double> ParseNumber(std::string_view text);

/// Returns true if CDbl converts the value. Dates are an exception: they are not numeric.
///@{
bool IsNumeric(const Variant& value);
bool IsNumeric(std::string_view text);
///@}

/// Returns the number at the beginning of the text, or 0 if there is none; other values are converted with
/// CStr first. Ignores blanks, tabs and line ends anywhere. The decimal separator is a point in every locale.
/// Raises error 6 if the number is too large.
///@{
double Val(std::string_view text);
double Val(const Variant& value);
///@}

/// Returns the sum of two numbers. Raises error 6 if the sum is out of range.
double Sum(double a, double b);

/// Formats a number as the language does: up to 15 digits, a decimal point, and scientific notation ("1E+50")
/// for numbers that would be longer.
std::string NumberText(double value);

}  // namespace plotsmith::runtime
